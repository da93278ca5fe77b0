// Darwin <sys/attr.h>: getattrlist(2) and the volume capabilities it reports.
#pragma once
#include <stddef.h>
#include <sys/types.h>

typedef u_int32_t attrgroup_t;
struct attrlist {
    u_short bitmapcount;
    u_int16_t reserved;
    attrgroup_t commonattr;
    attrgroup_t volattr;
    attrgroup_t dirattr;
    attrgroup_t fileattr;
    attrgroup_t forkattr;
};
#define ATTR_BIT_MAP_COUNT 5

#define ATTR_VOL_FSTYPE 0x00000001
#define ATTR_VOL_CAPABILITIES 0x00020000
#define ATTR_VOL_INFO 0x80000000

typedef u_int32_t vol_capabilities_set_t[4];
#define VOL_CAPABILITIES_FORMAT 0
#define VOL_CAPABILITIES_INTERFACES 1
typedef struct vol_capabilities_attr {
    vol_capabilities_set_t capabilities;
    vol_capabilities_set_t valid;
} vol_capabilities_attr_t;

#define VOL_CAP_INT_SEARCHFS 0x00000001
#define VOL_CAP_INT_ATTRLIST 0x00000002
#define VOL_CAP_INT_EXTENDED_SECURITY 0x00000040
#define VOL_CAP_INT_EXTENDED_ATTR 0x00004000
#define VOL_CAP_INT_CLONE 0x00010000
#define VOL_CAP_INT_RENAME_EXCL 0x00080000

extern "C" {
int getattrlist(const char* path, void* attrList, void* attrBuf, size_t attrBufSize, unsigned int options);
int fgetattrlist(int fd, void* attrList, void* attrBuf, size_t attrBufSize, unsigned int options);
}
