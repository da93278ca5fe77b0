// Linux-only: Darwin has no <sys/prctl.h>.
#error "<sys/prctl.h> is Linux-only"
