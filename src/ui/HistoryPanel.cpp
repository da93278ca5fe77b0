#include "ui/HistoryPanel.h"

#include "model/HistoryDigest.h"
#include "model/HistoryRecorder.h"
#include "ui/HistoryChart.h"
#include "ui/PageLabels.h"

#include <QLabel>
#include <QVBoxLayout>

HistoryPanel::HistoryPanel(HistoryRecorder* history, QWidget* parent)
    : QWidget(parent), m_history(history), m_change(PageLabels::body({}, this)), m_notes(PageLabels::note({}, this)),
      m_chart(new HistoryChart(this))
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_change);
    layout->addWidget(m_notes);
    layout->addWidget(m_chart);
    connect(m_history, &HistoryRecorder::changed, this, &HistoryPanel::refresh);
    refresh();
}

void HistoryPanel::refresh()
{
    const QList<HistoryRecord>& records = m_history->records();
    const auto change = HistoryDigest::sinceLastScan(records, QDateTime::currentDateTimeUtc());
    m_change->setText(change.value_or(QString()));
    m_change->setVisible(change.has_value());
    m_notes->setText(m_history->notes().join(QLatin1Char('\n')));
    m_notes->setVisible(!m_history->notes().isEmpty());
    m_chart->setRecords(records);
    m_chart->setVisible(std::any_of(records.begin(), records.end(), [](const HistoryRecord& r) { return r.kind == HistoryRecord::Kind::scan; }));
}
