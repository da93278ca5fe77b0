#pragma once

#include <QColor>
#include <QList>
#include <QWidget>

// The used disk drawn as a ring of coloured segments, largest first from the top, clockwise,
// with the used size in its middle. Painted with QPainter; a click on a segment reports its
// index. GUI thread only.
class StorageRing : public QWidget {
    Q_OBJECT

public:
    struct Segment {
        QColor colour;
        qint64 bytes = 0;
        QString title;
    };

    explicit StorageRing(QWidget* parent = nullptr);

    void setSegments(QList<Segment> segments, const QString& centre, const QString& caption);
    void setHighlighted(int index);
    // The segment under `point` (widget coordinates), or -1.
    int segmentAt(const QPointF& point) const;
    QSize sizeHint() const override { return {260, 260}; }

signals:
    void segmentClicked(int index);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    QRectF ringRect() const;
    qreal thickness() const;
    // Start and span of a segment in degrees, clockwise from twelve o'clock.
    QPair<qreal, qreal> angles(int index) const;
    void paintSegment(QPainter& painter, int index);
    void paintCentre(QPainter& painter);

    QList<Segment> m_segments;
    qint64 m_total = 0;
    QString m_centre;
    QString m_caption;
    int m_highlighted = -1;
    int m_hovered = -1;
};
