// Linux-only: Darwin has no <linux/fs.h>.
#error "<linux/fs.h> is Linux-only"
