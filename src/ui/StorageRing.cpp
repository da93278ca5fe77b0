#include "ui/StorageRing.h"

#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QToolTip>

#include <QtMath>
#include <algorithm>

StorageRing::StorageRing(QWidget* parent) : QWidget(parent)
{
    setMouseTracking(true);
    setMinimumSize(200, 200);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
}

void StorageRing::setSegments(QList<Segment> segments, const QString& centre, const QString& caption)
{
    m_segments = std::move(segments);
    m_total = 0;
    for (const Segment& segment : m_segments)
        m_total += std::max<qint64>(0, segment.bytes);
    m_centre = centre;
    m_caption = caption;
    m_hovered = -1;
    update();
}

void StorageRing::setHighlighted(int index)
{
    m_highlighted = index;
    update();
}

QRectF StorageRing::ringRect() const
{
    const qreal side = std::min(width(), height()) - 16.0;
    return QRectF((width() - side) / 2, (height() - side) / 2, side, side);
}

qreal StorageRing::thickness() const
{
    return ringRect().width() * 0.16;
}

QPair<qreal, qreal> StorageRing::angles(int index) const
{
    qreal start = 0;
    for (int i = 0; i < index; ++i)
        start += 360.0 * static_cast<qreal>(m_segments.at(i).bytes) / static_cast<qreal>(m_total);
    return {start, 360.0 * static_cast<qreal>(m_segments.at(index).bytes) / static_cast<qreal>(m_total)};
}

int StorageRing::segmentAt(const QPointF& point) const
{
    if (m_total <= 0)
        return -1;
    const QRectF ring = ringRect();
    const QPointF offset = point - ring.center();
    const qreal distance = std::hypot(offset.x(), offset.y());
    if (distance > ring.width() / 2 || distance < ring.width() / 2 - thickness())
        return -1;
    // Clockwise degrees from twelve o'clock.
    qreal degrees = qRadiansToDegrees(std::atan2(offset.x(), -offset.y()));
    if (degrees < 0)
        degrees += 360;
    for (int i = 0; i < m_segments.size(); ++i) {
        const auto [start, span] = angles(i);
        if (degrees >= start && degrees < start + span)
            return i;
    }
    return -1;
}

void StorageRing::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (m_total <= 0) {
        painter.setPen(QPen(palette().color(QPalette::Mid), thickness(), Qt::SolidLine, Qt::FlatCap));
        const qreal inset = thickness() / 2;
        painter.drawEllipse(ringRect().adjusted(inset, inset, -inset, -inset));
    }
    for (int i = 0; i < m_segments.size() && m_total > 0; ++i)
        paintSegment(painter, i);
    paintCentre(painter);
}

void StorageRing::paintSegment(QPainter& painter, int index)
{
    const auto [start, span] = angles(index);
    if (span <= 0)
        return;
    const bool raised = index == m_hovered || index == m_highlighted;
    const QRectF outer = raised ? ringRect() : ringRect().adjusted(4, 4, -4, -4);
    const qreal inner = ringRect().width() / 2 - thickness();
    const QRectF innerRect(ringRect().center() - QPointF(inner, inner), QSizeF(2 * inner, 2 * inner));
    // Qt's angles run counter-clockwise from three o'clock.
    const qreal qtStart = 90 - start;
    QPainterPath path;
    path.arcMoveTo(outer, qtStart);
    path.arcTo(outer, qtStart, -span);
    path.arcTo(innerRect, qtStart - span, span);
    path.closeSubpath();
    QColor colour = m_segments.at(index).colour;
    if (m_highlighted >= 0 && !raised)
        colour.setAlphaF(0.45);
    painter.setPen(QPen(palette().color(QPalette::Window), 1.5));
    painter.setBrush(colour);
    painter.drawPath(path);
}

void StorageRing::paintCentre(QPainter& painter)
{
    const QRectF ring = ringRect();
    const qreal inner = ring.width() / 2 - thickness() - 6;
    const QRectF box(ring.center() - QPointF(inner, inner / 2), QSizeF(2 * inner, inner));
    QFont big = font();
    big.setPointSizeF(big.pointSizeF() * 1.7);
    big.setBold(true);
    painter.setFont(big);
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(box.adjusted(0, 0, 0, -box.height() / 2), Qt::AlignHCenter | Qt::AlignBottom, m_centre);
    painter.setFont(font());
    painter.setPen(palette().color(QPalette::PlaceholderText));
    // "measured of 216.64 GB used" is wider than the hole: it goes on two lines.
    painter.drawText(box.adjusted(0, box.height() / 2 + 2, 0, 0), Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap, m_caption);
}

void StorageRing::mouseMoveEvent(QMouseEvent* event)
{
    const int hovered = segmentAt(event->position());
    if (hovered == m_hovered)
        return;
    m_hovered = hovered;
    setCursor(hovered >= 0 ? Qt::PointingHandCursor : Qt::ArrowCursor);
    if (hovered >= 0)
        QToolTip::showText(event->globalPosition().toPoint(), m_segments.at(hovered).title, this);
    else
        QToolTip::hideText();
    update();
}

void StorageRing::mousePressEvent(QMouseEvent* event)
{
    const int index = segmentAt(event->position());
    if (index >= 0)
        emit segmentClicked(index);
}

void StorageRing::leaveEvent(QEvent*)
{
    m_hovered = -1;
    update();
}
