#pragma once

#include "scan/AgentsScanner.h"
#include "scan/Scanner.h"

// Fills "Editors" from the editors' known cache folders. Caches inside the application data
// of an agent editor that is no longer installed are left to "AI Agents", which offers that
// whole folder. A row is locked while its editor (for JetBrains caches also JetBrains
// Toolbox) runs. A value type; scan() runs on a worker thread.
class EditorsScanner : public Scanner {
public:
    explicit EditorsScanner(AgentsScanner::Environment environment = AgentsScanner::standardEnvironment())
        : m_environment(std::move(environment)) {}

    QList<CategoryID> categories() const override { return {CategoryID::editors}; }
    ScanOutputs scan(const ScanContext& context) const override;

private:
    AgentsScanner::Environment m_environment;
};
