// Darwin <dirent.h> (64-bit inodes): d_namlen beside d_name; no getdents64.
#pragma once
#include <sys/types.h>

struct dirent {
    __uint64_t d_ino;
    __uint64_t d_seekoff;
    __uint16_t d_reclen;
    __uint16_t d_namlen;
    __uint8_t d_type;
    char d_name[1024];
};
typedef struct DIR DIR;

#define DT_UNKNOWN 0
#define DT_FIFO 1
#define DT_CHR 2
#define DT_DIR 4
#define DT_BLK 6
#define DT_REG 8
#define DT_LNK 10
#define DT_SOCK 12
#define DT_WHT 14

extern "C" {
DIR* opendir(const char* dirname);
DIR* fdopendir(int fd);
struct dirent* readdir(DIR* dirp);
int closedir(DIR* dirp);
int dirfd(DIR* dirp);
void rewinddir(DIR* dirp);
}
