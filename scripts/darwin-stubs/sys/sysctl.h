// Darwin <sys/sysctl.h>: sysctl(3).
#pragma once
#include <stddef.h>

#define CTL_KERN 1
#define KERN_PROC 14
#define KERN_PROC_PID 1
#define KERN_ARGMAX 8

extern "C" {
int sysctl(int* name, unsigned int namelen, void* oldp, size_t* oldlenp, void* newp, size_t newlen);
int sysctlbyname(const char* name, void* oldp, size_t* oldlenp, void* newp, size_t newlen);
}
