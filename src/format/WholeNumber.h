#pragma once

#include <QString>

// The one formatter of counts: whole numbers with the language's thousands separator
// ("12,345"), also where the locale in force is the plain C locale, which omits it.
namespace WholeNumber {

[[nodiscard]] QString format(qint64 value);

}  // namespace WholeNumber
