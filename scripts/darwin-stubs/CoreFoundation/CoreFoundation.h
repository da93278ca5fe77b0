// CoreFoundation: the C API Dustlark calls (CFBase, CFString, CFNumber, CFArray, CFURL,
// CFBundle, CFPreferences), as Apple documents it.
#pragma once
#include <stdint.h>

typedef unsigned char Boolean;
typedef uint8_t UInt8;
typedef int32_t SInt32;
typedef int64_t SInt64;
typedef uint32_t UInt32;
typedef long CFIndex;
typedef unsigned long CFTypeID;
typedef const void* CFTypeRef;
typedef UInt32 CFStringEncoding;
typedef const struct __CFAllocator* CFAllocatorRef;
typedef const struct __CFString* CFStringRef;
typedef const struct __CFNumber* CFNumberRef;
typedef const struct __CFArray* CFArrayRef;
typedef const struct __CFURL* CFURLRef;
typedef struct __CFBundle* CFBundleRef;
typedef struct __CFError* CFErrorRef;
typedef const struct __CFDictionary* CFDictionaryRef;
typedef const struct __CFBoolean* CFBooleanRef;

enum { kCFStringEncodingUTF8 = 0x08000100 };
typedef enum { kCFNumberSInt32Type = 3, kCFNumberSInt64Type = 4, kCFNumberDoubleType = 13 } CFNumberType;

extern "C" {
extern const CFAllocatorRef kCFAllocatorDefault;
extern const CFStringRef kCFURLVolumeAvailableCapacityKey;
extern const CFStringRef kCFURLVolumeAvailableCapacityForImportantUsageKey;
extern const CFStringRef kCFURLVolumeTotalCapacityKey;
extern const CFStringRef kCFURLVolumeSupportsExtendedSecurityKey;
extern const CFStringRef kCFPreferencesCurrentApplication;
extern const CFBooleanRef kCFBooleanTrue;
extern const CFBooleanRef kCFBooleanFalse;

void CFRelease(CFTypeRef cf);
CFTypeRef CFRetain(CFTypeRef cf);
CFTypeID CFGetTypeID(CFTypeRef cf);

CFTypeID CFStringGetTypeID(void);
CFStringRef CFStringCreateWithCString(CFAllocatorRef alloc, const char* cStr, CFStringEncoding encoding);
CFStringRef CFStringCreateWithBytes(CFAllocatorRef alloc, const UInt8* bytes, CFIndex numBytes,
                                    CFStringEncoding encoding, Boolean isExternalRepresentation);
CFIndex CFStringGetLength(CFStringRef theString);
CFIndex CFStringGetMaximumSizeForEncoding(CFIndex length, CFStringEncoding encoding);
Boolean CFStringGetCString(CFStringRef theString, char* buffer, CFIndex bufferSize, CFStringEncoding encoding);

CFTypeID CFNumberGetTypeID(void);
Boolean CFNumberGetValue(CFNumberRef number, CFNumberType theType, void* valuePtr);

CFTypeID CFArrayGetTypeID(void);
CFIndex CFArrayGetCount(CFArrayRef theArray);
const void* CFArrayGetValueAtIndex(CFArrayRef theArray, CFIndex idx);

CFURLRef CFURLCreateFromFileSystemRepresentation(CFAllocatorRef allocator, const UInt8* buffer, CFIndex bufLen,
                                                 Boolean isDirectory);
Boolean CFURLCopyResourcePropertyForKey(CFURLRef url, CFStringRef key, void* propertyValueTypeRefPtr, CFErrorRef* error);
Boolean CFURLGetFileSystemRepresentation(CFURLRef url, Boolean resolveAgainstBase, UInt8* buffer, CFIndex maxBufLen);

CFBundleRef CFBundleGetMainBundle(void);
CFTypeRef CFBundleGetValueForInfoDictionaryKey(CFBundleRef bundle, CFStringRef key);

CFTypeRef CFPreferencesCopyAppValue(CFStringRef key, CFStringRef applicationID);
}
