// Included before every source the stub compile check reads: the Darwin additions to headers
// the host's C library provides itself, and the Linux-only calls of those headers made
// unavailable, so a use of them fails as it would on a Mac.
#pragma once
#include <spawn.h>
#include <stdio.h>
#include <unistd.h>

// <stdio.h>: renamex_np(3)
#define RENAME_SWAP 0x00000002
#define RENAME_EXCL 0x00000004
extern "C" {
int renamex_np(const char* from, const char* to, unsigned int flags);
int renameatx_np(int fromfd, const char* from, int tofd, const char* to, unsigned int flags);
}
// <unistd.h>: confstr(3)
#define _CS_DARWIN_USER_DIR 65536
#define _CS_DARWIN_USER_TEMP_DIR 65537
#define _CS_DARWIN_USER_CACHE_DIR 65538
// <spawn.h>: posix_spawnattr_setflags(3)
#define POSIX_SPAWN_SETEXEC 0x0040
#define POSIX_SPAWN_START_SUSPENDED 0x0080
#define POSIX_SPAWN_CLOEXEC_DEFAULT 0x4000

#define DARWIN_LACKS(what) __attribute__((unavailable(what " is Linux-only; Darwin has no such call")))
extern "C" {
int renameat2(int, const char*, int, const char*, unsigned int) noexcept DARWIN_LACKS("renameat2");
int pipe2(int*, int) noexcept DARWIN_LACKS("pipe2");
int dup3(int, int, int) noexcept DARWIN_LACKS("dup3");
ssize_t getdents64(int, void*, size_t) noexcept DARWIN_LACKS("getdents64");
ssize_t copy_file_range(int, off_t*, int, off_t*, size_t, unsigned int) DARWIN_LACKS("copy_file_range");
int execvpe(const char*, char* const*, char* const*) noexcept DARWIN_LACKS("execvpe");
int syncfs(int) noexcept DARWIN_LACKS("syncfs");
}
#undef RENAME_NOREPLACE
#undef RENAME_EXCHANGE
