#pragma once

#include <QString>

// The report tool's page of usage: every verb, every option and the category names.
namespace ReportHelp {

[[nodiscard]] QString page();

}  // namespace ReportHelp
