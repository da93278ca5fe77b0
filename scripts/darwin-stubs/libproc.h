// Darwin <libproc.h>.
#pragma once
#include <sys/types.h>
#include <sys/proc_info.h>

#define PROC_PIDPATHINFO_SIZE 1024
#define PROC_PIDPATHINFO_MAXSIZE (4 * 1024)

extern "C" {
int proc_listallpids(void* buffer, int buffersize);
int proc_listpids(uint32_t type, uint32_t typeinfo, void* buffer, int buffersize);
int proc_pidinfo(int pid, int flavor, uint64_t arg, void* buffer, int buffersize);
int proc_pidpath(int pid, void* buffer, uint32_t buffersize);
int proc_name(int pid, void* buffer, uint32_t buffersize);
}
