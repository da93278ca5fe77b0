#pragma once

#include "history/HistoryRecord.h"

#include <QWidget>

#include <functional>
#include <optional>

// A small line chart of the kept full scans: bytes found to review and disk used, oldest on the
// left, each line on its own scale (disk used dwarfs what a scan finds), with the newest figures
// in the legend.
class HistoryChart : public QWidget {
    Q_OBJECT

public:
    explicit HistoryChart(QWidget* parent = nullptr);

    // The store's listing, newest first; only full scans are drawn.
    void setRecords(const QList<HistoryRecord>& newestFirst);
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    struct Point {
        QDateTime date;
        qint64 found = 0;
        std::optional<qint64> diskUsed;
    };
    void drawLine(QPainter& painter, const QRectF& area, const QColor& colour,
                  const std::function<std::optional<qint64>(const Point&)>& value) const;

    QList<Point> m_points;  // oldest first
};
