#include "format/WholeNumber.h"

#include <QLocale>

namespace WholeNumber {

QString format(qint64 value)
{
    QLocale locale;
    locale.setNumberOptions(locale.numberOptions() & ~QLocale::OmitGroupSeparator);
    return locale.toString(value);
}

}  // namespace WholeNumber
