// Linux-only: Darwin has no <sys/inotify.h>.
#error "<sys/inotify.h> is Linux-only"
