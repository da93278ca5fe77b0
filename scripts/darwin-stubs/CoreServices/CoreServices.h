// CoreServices: the LaunchServices call Dustlark makes.
#pragma once
#include <CoreFoundation/CoreFoundation.h>

extern "C" {
// Deprecated in macOS 12 (its replacement is Objective-C only), still present.
__attribute__((deprecated)) CFArrayRef LSCopyApplicationURLsForBundleIdentifier(CFStringRef inBundleIdentifier,
                                                                                CFErrorRef* outError);
}
