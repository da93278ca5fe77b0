// Linux-only: Darwin has no <linux/fiemap.h>.
#error "<linux/fiemap.h> is Linux-only"
