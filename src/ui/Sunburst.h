#pragma once

#include "storage/FolderNode.h"
#include "ui/SunburstLayout.h"

#include <QPixmap>
#include <QStringList>
#include <QWidget>

class QPainterPath;

// The measured folders as a sunburst: the centre is the home or the folder zoomed into, each
// ring one level deeper, coloured by kind of data. Hovering shows a folder's name, size and
// share; a click on a folder zooms into it, a click on the centre or Backspace zooms out; the
// arrows move between segments (left and right around a ring, down one ring out, up one ring
// in) and Enter zooms in. The picture is drawn once per tree, zoom or size; hovering only draws
// the outline of one segment over it. GUI thread only.
class Sunburst : public QWidget {
    Q_OBJECT

public:
    explicit Sunburst(QWidget* parent = nullptr);

    // Keeps its own copy; a zoom that still exists in the new tree is kept.
    void setTree(FolderNode tree);
    const FolderNode& tree() const { return m_tree; }
    // Names from the tree's top down to the centre; empty at the top.
    QStringList zoom() const { return m_zoom; }
    void zoomTo(const QStringList& names);
    void zoomOut();

    const SunburstLayout& layout() const { return m_layout; }
    // The segment under `point` (widget coordinates): its index, -1 for none, centreHit for the centre.
    static constexpr int centreHit = -2;
    int segmentAt(const QPointF& point) const;
    // The middle of a segment, for pointing at it.
    QPointF middleOf(int index) const;
    int hovered() const { return m_hovered; }
    int current() const { return m_current; }
    // The names from the tree's top down to the folder of a segment (the folder holding it, for
    // its files or smaller items).
    QStringList folderOf(int index) const;
    // The text shown for a segment when it is hovered or current.
    QString describe(int index) const;

    QSize sizeHint() const override { return {420, 420}; }
    QSize minimumSizeHint() const override { return {220, 220}; }

signals:
    void zoomChanged(const QStringList& names);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    struct Geometry {
        QPointF centre;
        double hole = 0;  // radius of the centre
        double ring = 0;  // width of one ring
    };

    Geometry geometry() const;
    void relayout();
    void redraw();
    QPainterPath pathOf(int index) const;
    QColor colourOf(int index) const;
    void paintCentre(QPainter& painter) const;
    void setHovered(int index, const QPoint& global);
    void setCurrent(int index);
    void zoomInto(int index);

    FolderNode m_tree;
    QStringList m_zoom;
    SunburstLayout m_layout;
    QPixmap m_picture;
    int m_hovered = -1;
    int m_current = -1;
};
