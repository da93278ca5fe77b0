#include "format/ByteCount.h"

#include <QCoreApplication>
#include <QLocale>

#include <array>
#include <cmath>

namespace ByteCount {

namespace {

struct Unit {
    const char* name;
    int fractionDigits;  // more precision for bigger units, as the file-size style does
};

constexpr std::array<Unit, 6> units{{
    {"KB", 0}, {"MB", 1}, {"GB", 2}, {"TB", 2}, {"PB", 2}, {"EB", 2},
}};

QString number(double value, int fractionDigits)
{
    QString text = QLocale().toString(value, 'f', fractionDigits);
    if (fractionDigits > 0) {
        const QChar point = QLocale().decimalPoint().at(0);
        while (text.endsWith(QLatin1Char('0')))
            text.chop(1);
        if (text.endsWith(point))
            text.chop(1);
    }
    return text;
}

}  // namespace

QString format(qint64 bytes)
{
    if (bytes == 0)
        //: A size of nothing, in the system's file-size style
        return QCoreApplication::translate("ByteCount", "Zero KB");
    // Unsigned, so the smallest qint64 (a garbled size can end up there) has a magnitude too.
    const quint64 magnitude = bytes < 0 ? 0 - static_cast<quint64>(bytes) : static_cast<quint64>(bytes);
    if (magnitude < 1000) {
        if (magnitude == 1)
            //: A size of one byte; %1 is "1" or "-1"
            return QCoreApplication::translate("ByteCount", "%1 byte").arg(bytes);
        //: A size below one kilobyte; %1 is the number of bytes
        return QCoreApplication::translate("ByteCount", "%1 bytes").arg(bytes);
    }
    double value = static_cast<double>(bytes) / 1000.0;
    size_t unit = 0;
    // Move up a unit when the rounded number would read 1000 (999,999 bytes is "1 MB").
    while (unit + 1 < units.size()) {
        const double scale = std::pow(10.0, units[unit].fractionDigits);
        if (std::abs(std::round(value * scale) / scale) < 1000.0)
            break;
        value /= 1000.0;
        ++unit;
    }
    //: A size with its unit, e.g. "1.2 GB"; %1 is the number, %2 the unit (KB, MB, GB, TB)
    return QCoreApplication::translate("ByteCount", "%1 %2")
        .arg(number(value, units[unit].fractionDigits), QString::fromLatin1(units[unit].name));
}

}  // namespace ByteCount

QString ByteCount::formatChange(qint64 bytes)
{
    if (bytes == 0)
        return format(0);
    // U+2212, the minus sign, which lines up with the plus sign; "-" is a hyphen.
    return (bytes > 0 ? QStringLiteral("+") : QStringLiteral("\u2212")) + format(bytes > 0 ? bytes : -bytes);
}
