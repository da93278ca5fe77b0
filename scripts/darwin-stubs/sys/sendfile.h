// Linux-only: Darwin has no <sys/sendfile.h>.
#error "<sys/sendfile.h> is Linux-only"
