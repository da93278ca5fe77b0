#include "model/FilteredOutputs.h"

FilteredOutputs FilteredOutputs::filterNow(ScanOutputs outputs, ScanFilter filter, QStringList scanFolders)
{
    FilteredOutputs result = unfiltered(std::move(outputs), std::move(filter), std::move(scanFolders));
    for (const auto& [category, output] : result.outputs)
        result.shown[category] = ListFacts(category, result.filter.shown(output.items, result.scanFolders));
    return result;
}

FilteredOutputs FilteredOutputs::unfiltered(ScanOutputs outputs, ScanFilter filter, QStringList scanFolders)
{
    return FilteredOutputs{std::move(outputs), std::move(filter), std::move(scanFolders), {}};
}

ListFacts FilteredOutputs::shownFor(CategoryID category, const ScanFilter& current,
                                    const QStringList& currentFolders) const
{
    const auto done = shown.find(category);
    if (done != shown.end() && current == filter && currentFolders == scanFolders)
        return done->second;
    const auto output = outputs.find(category);
    return output == outputs.end() ? ListFacts() : ListFacts(category, current.shown(output->second.items, currentFolders));
}
