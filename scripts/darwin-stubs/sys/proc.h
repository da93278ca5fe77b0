// Darwin <sys/proc.h>: the process states of p_stat.
#pragma once

#define SIDL 1
#define SRUN 2
#define SSLEEP 3
#define SSTOP 4
#define SZOMB 5
