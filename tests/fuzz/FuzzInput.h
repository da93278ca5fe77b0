#pragma once

#include <QByteArray>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

// libFuzzer's input as bytes, not copied and not NUL-terminated, so a parser that reads past the
// end is caught by AddressSanitizer.
inline QByteArray fuzzBytes(const uint8_t* data, size_t size)
{
    return QByteArray::fromRawData(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
}

// A property every accepted input must have; a broken one is a finding like a crash.
inline void fuzzRequire(bool holds, const char* what)
{
    if (holds)
        return;
    std::fprintf(stderr, "fuzz: broken property: %s\n", what);
    std::abort();
}
