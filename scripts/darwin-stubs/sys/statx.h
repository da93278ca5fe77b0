// Linux-only: Darwin has no <sys/statx.h>.
#error "<sys/statx.h> is Linux-only"
