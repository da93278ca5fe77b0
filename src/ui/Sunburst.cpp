#include "ui/Sunburst.h"

#include "format/ByteCount.h"
#include "ui/RowMenuKeys.h"
#include "ui/StorageBucketStyle.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QToolTip>

#include <QtMath>
#include <algorithm>

namespace {

QString percentOf(qint64 bytes, qint64 total)
{
    if (total <= 0)
        return {};
    const double percent = 100.0 * static_cast<double>(bytes) / static_cast<double>(total);
    return percent < 1 ? QStringLiteral("<1%") : QStringLiteral("%1%").arg(qRound(percent));
}

// Outer rings are paler, so neighbouring rings of one kind stay apart.
QColor paler(const QColor& colour, int ring)
{
    const double toWhite = std::min(0.12 * ring, 0.5);
    return QColor::fromRgbF(float(colour.redF() + (1 - colour.redF()) * toWhite),
                            float(colour.greenF() + (1 - colour.greenF()) * toWhite),
                            float(colour.blueF() + (1 - colour.blueF()) * toWhite));
}

}  // namespace

Sunburst::Sunburst(QWidget* parent) : QWidget(parent)
{
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void Sunburst::setTree(FolderNode tree)
{
    m_tree = std::move(tree);
    while (!m_zoom.isEmpty() && !m_tree.find(m_zoom))
        m_zoom.removeLast();
    relayout();
}

void Sunburst::zoomTo(const QStringList& names)
{
    if (!m_tree.find(names) || names == m_zoom)
        return;
    m_zoom = names;
    relayout();
    emit zoomChanged(m_zoom);
}

void Sunburst::zoomOut()
{
    if (!m_zoom.isEmpty())
        zoomTo(m_zoom.mid(0, m_zoom.size() - 1));
}

void Sunburst::zoomInto(int index)
{
    if (index >= 0)
        zoomTo(folderOf(index));
}

QStringList Sunburst::folderOf(int index) const
{
    // The folders from the centre out to the segment, then the segment itself.
    QStringList names;
    for (int at = index; at >= 0; at = m_layout.parentOf(at))
        names.prepend(m_layout.segments().at(size_t(at)).node->name);
    const auto& segment = m_layout.segments().at(size_t(index));
    if (segment.part != SunburstLayout::Part::folder)
        names.removeLast();  // files and smaller items stand for the folder that holds them
    return m_zoom + names;
}

void Sunburst::relayout()
{
    const FolderNode* centre = m_tree.find(m_zoom);
    m_layout.build(centre ? *centre : m_tree);
    m_hovered = -1;
    m_current = -1;
    redraw();
}

Sunburst::Geometry Sunburst::geometry() const
{
    const double radius = std::min(width(), height()) / 2.0 - 6;
    const double hole = radius * 0.3;
    return {QPointF(width() / 2.0, height() / 2.0), hole, std::max(0.0, (radius - hole) / SunburstLayout::rings)};
}

QPainterPath Sunburst::pathOf(int index) const
{
    const auto& segment = m_layout.segments().at(size_t(index));
    const Geometry at = geometry();
    const double inner = at.hole + segment.ring * at.ring;
    const double outer = inner + at.ring;
    const QRectF outerBox(at.centre - QPointF(outer, outer), QSizeF(2 * outer, 2 * outer));
    const QRectF innerBox(at.centre - QPointF(inner, inner), QSizeF(2 * inner, 2 * inner));
    // Qt's angles run counter-clockwise from three o'clock.
    const double qtStart = 90 - segment.start;
    QPainterPath path;
    path.arcMoveTo(outerBox, qtStart);
    path.arcTo(outerBox, qtStart, -segment.span);
    path.arcTo(innerBox, qtStart - segment.span, segment.span);
    path.closeSubpath();
    return path;
}

QColor Sunburst::colourOf(int index) const
{
    const auto& segment = m_layout.segments().at(size_t(index));
    if (segment.part == SunburstLayout::Part::smaller)
        return StorageBucketStyle::remainderColour();
    const QColor colour = StorageBucketStyle::colour(segment.node->kind);
    return paler(colour, segment.ring + (segment.part == SunburstLayout::Part::files ? 2 : 0));
}

void Sunburst::redraw()
{
    const qreal ratio = devicePixelRatioF();
    m_picture = QPixmap(size() * ratio);
    m_picture.setDevicePixelRatio(ratio);
    m_picture.fill(Qt::transparent);
    QPainter painter(&m_picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(palette().color(QPalette::Window), 0.8));
    for (int i = 0; i < int(m_layout.segments().size()); ++i) {
        painter.setBrush(colourOf(i));
        painter.drawPath(pathOf(i));
    }
    update();
}

void Sunburst::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.drawPixmap(0, 0, m_picture);
    painter.setRenderHint(QPainter::Antialiasing);
    for (int index : {m_hovered, m_current}) {
        if (index < 0)
            continue;
        painter.setBrush(colourOf(index).darker(115));
        painter.setPen(QPen(palette().color(QPalette::Highlight), index == m_current && hasFocus() ? 2.5 : 1.5));
        painter.drawPath(pathOf(index));
    }
    paintCentre(painter);
}

void Sunburst::paintCentre(QPainter& painter) const
{
    const Geometry at = geometry();
    const FolderNode& centre = *m_layout.centre();
    painter.setPen(Qt::NoPen);
    painter.setBrush(palette().color(m_hovered == centreHit ? QPalette::Midlight : QPalette::Base));
    painter.drawEllipse(at.centre, at.hole - 2, at.hole - 2);
    const double half = at.hole * 0.92;
    const QRectF box(at.centre - QPointF(half, half * 0.6), QSizeF(2 * half, 1.2 * half));
    QFont bold = font();
    bold.setBold(true);
    painter.setFont(bold);
    painter.setPen(palette().color(QPalette::WindowText));
    const QString name = painter.fontMetrics().elidedText(centre.name, Qt::ElideMiddle, int(box.width()));
    painter.drawText(box.adjusted(0, 0, 0, -box.height() / 2), Qt::AlignHCenter | Qt::AlignBottom, name);
    painter.setFont(font());
    painter.setPen(palette().color(QPalette::PlaceholderText));
    painter.drawText(box.adjusted(0, box.height() / 2 + 2, 0, 0), Qt::AlignHCenter | Qt::AlignTop,
                     ByteCount::format(centre.bytes));
}

void Sunburst::resizeEvent(QResizeEvent*)
{
    redraw();
}

int Sunburst::segmentAt(const QPointF& point) const
{
    const Geometry at = geometry();
    const QPointF offset = point - at.centre;
    const double distance = std::hypot(offset.x(), offset.y());
    if (distance < at.hole)
        return centreHit;
    if (at.ring <= 0)
        return -1;
    double degrees = qRadiansToDegrees(std::atan2(offset.x(), -offset.y()));
    if (degrees < 0)
        degrees += 360;
    return m_layout.segmentAt(int((distance - at.hole) / at.ring), degrees);
}

QPointF Sunburst::middleOf(int index) const
{
    const auto& segment = m_layout.segments().at(size_t(index));
    const Geometry at = geometry();
    const double radius = at.hole + (segment.ring + 0.5) * at.ring;
    const double angle = qDegreesToRadians(segment.start + segment.span / 2);
    return at.centre + QPointF(radius * std::sin(angle), -radius * std::cos(angle));
}

QString Sunburst::describe(int index) const
{
    const FolderNode& centre = *m_layout.centre();
    if (index == centreHit) {
        if (m_zoom.isEmpty())
            return centre.name + QLatin1Char('\n') + ByteCount::format(centre.bytes);
        //: Tooltip of the sunburst's centre when zoomed in; %1 is the folder's name, %2 its size
        return tr("%1\n%2 · click to go back").arg(centre.name, ByteCount::format(centre.bytes));
    }
    if (index < 0)
        return {};
    const auto& segment = m_layout.segments().at(size_t(index));
    QString name = segment.node->name;
    if (segment.part == SunburstLayout::Part::files)
        //: Sunburst segment of the files that lie directly in a folder; %1 is the folder's name
        name = tr("Files in %1").arg(segment.node->name);
    else if (segment.part == SunburstLayout::Part::smaller)
        //: Sunburst segment that merges the sub-folders too small to show; %1 is the folder's name
        name = tr("Smaller items in %1").arg(segment.node->name);
    //: Second line of a sunburst tooltip; %1 is a size, %2 a percentage, %3 the folder in the middle
    return name + QLatin1Char('\n') + tr("%1 · %2 of %3").arg(ByteCount::format(segment.bytes),
                                                           percentOf(segment.bytes, centre.bytes), centre.name);
}

void Sunburst::setHovered(int index, const QPoint& global)
{
    if (index == m_hovered)
        return;
    m_hovered = index;
    const bool zoomable = index == centreHit ? !m_zoom.isEmpty() : index >= 0;
    setCursor(zoomable ? Qt::PointingHandCursor : Qt::ArrowCursor);
    if (index == -1)
        QToolTip::hideText();
    else
        QToolTip::showText(global, describe(index), this);
    update();
}

void Sunburst::setCurrent(int index)
{
    if (index == m_current)
        return;
    m_current = index;
    setAccessibleDescription(describe(index));
    update();
}

void Sunburst::mouseMoveEvent(QMouseEvent* event)
{
    setHovered(segmentAt(event->position()), event->globalPosition().toPoint());
}

void Sunburst::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return;
    const int index = segmentAt(event->position());
    if (index == centreHit)
        zoomOut();
    else
        zoomInto(index);
}

void Sunburst::leaveEvent(QEvent*)
{
    setHovered(-1, {});
}

void Sunburst::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Right:
        return setCurrent(m_layout.sibling(m_current, 1));
    case Qt::Key_Left:
        return setCurrent(m_layout.sibling(m_current, -1));
    case Qt::Key_Down:
        if (const int child = m_layout.firstChild(m_current); child >= 0)
            setCurrent(child);
        return;
    case Qt::Key_Up:
        if (m_current >= 0 && m_layout.parentOf(m_current) >= 0)
            setCurrent(m_layout.parentOf(m_current));
        return;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return zoomInto(m_current);
    case Qt::Key_Backspace:
    case Qt::Key_Escape:
        return zoomOut();
    case Qt::Key_Menu:
    case Qt::Key_F10:
        if (RowMenuKeys::isMenuKey(event) && m_current >= 0)
            emit customContextMenuRequested(middleOf(m_current).toPoint());
        return;
    default:
        QWidget::keyPressEvent(event);
    }
}
