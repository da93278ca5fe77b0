// Darwin <sys/mount.h>: statfs(2) with 64-bit inodes (fsid_t as the host defines it).
#pragma once
#include <stdint.h>
#include <sys/types.h>

#define MFSTYPENAMELEN 16
#define MAXPATHLEN 1024

struct statfs {
    uint32_t f_bsize;
    int32_t f_iosize;
    uint64_t f_blocks;
    uint64_t f_bfree;
    uint64_t f_bavail;
    uint64_t f_files;
    uint64_t f_ffree;
    fsid_t f_fsid;
    uid_t f_owner;
    uint32_t f_type;
    uint32_t f_flags;
    uint32_t f_fssubtype;
    char f_fstypename[MFSTYPENAMELEN];
    char f_mntonname[MAXPATHLEN];
    char f_mntfromname[MAXPATHLEN];
    uint32_t f_flags_ext;
    uint32_t f_reserved[7];
};

extern "C" {
int statfs(const char* path, struct statfs* buf);
int fstatfs(int fd, struct statfs* buf);
}
