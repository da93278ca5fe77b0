#pragma once

#include "report/ReportCommand.h"

#include <QSettings>

// `dustlark-cli clean`: scans the asked categories, picks the rows through the model's selection
// rules (CleanPlan), and lists them (--dry-run) or removes exactly them through the cleanup run
// and the remover, to the Trash, holding the cleanup lock the app takes too. A real run is
// recorded in the statistics kept in `settings`, as the app records a cleanup. Ctrl-C stops it
// after the current item. Returns the exit status: 0 all removed (or would be), 1 some failed,
// stopped or another cleanup runs, 3 nothing to remove.
namespace CleanCommand {

int run(const ReportOptions& options, const ReportCommand::Protection& protection, QSettings* settings);

}  // namespace CleanCommand
