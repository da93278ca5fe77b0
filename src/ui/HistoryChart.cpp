#include "ui/HistoryChart.h"

#include "format/ByteCount.h"

#include <QPainter>
#include <QPainterPath>
#include <QPalette>

#include <algorithm>

namespace {

constexpr int legendHeight = 18;

const QColor foundColour(0x2f, 0x80, 0xed);
const QColor usedColour(0x9b, 0x9b, 0xa1);

}  // namespace

HistoryChart::HistoryChart(QWidget* parent) : QWidget(parent)
{
    setMinimumHeight(90);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

QSize HistoryChart::sizeHint() const
{
    return {420, 110};
}

void HistoryChart::setRecords(const QList<HistoryRecord>& newestFirst)
{
    m_points.clear();
    for (auto it = newestFirst.rbegin(); it != newestFirst.rend(); ++it) {
        if (it->kind == HistoryRecord::Kind::scan)
            m_points.append({it->date, it->found(), it->diskUsed});
    }
    update();
}

void HistoryChart::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF area = QRectF(rect()).adjusted(1, legendHeight + 4, -1, -1);
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawLine(area.bottomLeft(), area.bottomRight());
    if (m_points.isEmpty())
        return;
    drawLine(painter, area, usedColour, [](const Point& point) { return point.diskUsed; });
    drawLine(painter, area, foundColour, [](const Point& point) { return std::optional<qint64>(point.found); });

    const Point& newest = m_points.last();
    //: Legend of the Overview's chart; %1 the bytes found to review by the newest scan
    QString legend = tr("Found to review: %1").arg(ByteCount::format(newest.found));
    painter.setPen(foundColour);
    painter.drawText(QRectF(0, 0, width() / 2.0, legendHeight), Qt::AlignLeft | Qt::AlignVCenter, legend);
    if (newest.diskUsed) {
        //: Legend of the Overview's chart; %1 the disk's used space at the newest scan
        legend = tr("Disk used: %1").arg(ByteCount::format(*newest.diskUsed));
        painter.setPen(palette().color(QPalette::WindowText));
        painter.drawText(QRectF(width() / 2.0, 0, width() / 2.0, legendHeight), Qt::AlignRight | Qt::AlignVCenter, legend);
    }
}

// Each line spans from its smallest to its largest value, so a change of a few percent shows.
void HistoryChart::drawLine(QPainter& painter, const QRectF& area, const QColor& colour,
                            const std::function<std::optional<qint64>(const Point&)>& value) const
{
    qint64 low = std::numeric_limits<qint64>::max();
    qint64 high = std::numeric_limits<qint64>::min();
    for (const Point& point : m_points) {
        if (const auto v = value(point)) {
            low = std::min(low, *v);
            high = std::max(high, *v);
        }
    }
    if (low > high)
        return;
    const qint64 first = m_points.first().date.toSecsSinceEpoch();
    const double span = std::max<qint64>(1, m_points.last().date.toSecsSinceEpoch() - first);
    const double range = std::max<qint64>(1, high - low);
    QPainterPath path;
    for (const Point& point : m_points) {
        const auto v = value(point);
        if (!v)
            continue;
        const double x = m_points.size() == 1 ? area.center().x() : area.left() + area.width() * (point.date.toSecsSinceEpoch() - first) / span;
        const double y = area.bottom() - 4 - (area.height() - 8) * (static_cast<double>(*v - low) / range);
        if (path.elementCount() == 0)
            path.moveTo(x, y);
        else
            path.lineTo(x, y);
        painter.setPen(Qt::NoPen);
        painter.setBrush(colour);
        painter.drawEllipse(QPointF(x, y), 2.5, 2.5);
    }
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(colour, 2));
    painter.drawPath(path);
}
