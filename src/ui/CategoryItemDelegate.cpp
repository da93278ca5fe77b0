#include "ui/CategoryItemDelegate.h"

#include "format/ByteCount.h"
#include "format/RelativeDate.h"
#include "ui/CategoryListModel.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>

namespace {

constexpr int verticalPadding = 8;
constexpr int lineGap = 3;
constexpr int gap = 12;

QFont smallFont(const QFont& base)
{
    QFont font = base;
    font.setPointSizeF(base.pointSizeF() * 0.9);
    return font;
}

QFont safetyFont(const QFont& base)
{
    QFont font = smallFont(base);
    font.setWeight(QFont::DemiBold);
    return font;
}

QColor safetyColor(Safety safety)
{
    switch (safety) {
    case Safety::safe: return QColor(0x2e, 0x7d, 0x32);
    case Safety::askAI: return QColor(0x1a, 0x5f, 0xb4);
    case Safety::risky: return QColor(0xc0, 0x2b, 0x2b);
    }
    return {};
}

QColor lockedColor()
{
    return QColor(0xa8, 0x5a, 0x00);
}

QColor textColor(const QStyleOptionViewItem& option, bool secondary)
{
    const bool selected = option.state & QStyle::State_Selected;
    if (selected)
        return option.palette.color(QPalette::HighlightedText);
    return option.palette.color(secondary ? QPalette::PlaceholderText : QPalette::Text);
}

int safetyWidth(const QFont& base)
{
    const QFontMetrics metrics(safetyFont(base));
    int widest = 0;
    for (Safety safety : {Safety::safe, Safety::askAI, Safety::risky})
        widest = std::max(widest, metrics.horizontalAdvance(Safeties::title(safety)));
    return widest + 16;
}

int figuresWidth(const QFont& base)
{
    //: Width sample for the date column; not shown
    const QString longestDate = QCoreApplication::translate("CategoryItemDelegate", "11 months ago");
    return std::max(QFontMetrics(base).horizontalAdvance(QStringLiteral("999.99 MB")),
                    QFontMetrics(smallFont(base)).horizontalAdvance(longestDate)) + 4;
}

}  // namespace

CategoryItemDelegate::CategoryItemDelegate(const CategoryListModel* model, QString home, QObject* parent)
    : QStyledItemDelegate(parent), m_model(model), m_home(std::move(home))
{
}

CategoryItemDelegate::Geometry CategoryItemDelegate::geometry(const QStyleOptionViewItem& option,
                                                              const QModelIndex&) const
{
    const QRect rect = option.rect;
    const QStyle* style = option.widget ? option.widget->style() : QApplication::style();
    const int box = style->pixelMetric(QStyle::PM_IndicatorWidth, &option, option.widget);
    const QFontMetrics metrics(option.font);
    const QFontMetrics small(smallFont(option.font));
    const int lineTop = rect.top() + verticalPadding;
    const int secondTop = lineTop + metrics.height() + lineGap;

    Geometry g;
    g.checkbox = QRect(rect.left() + sidePadding, rect.center().y() - box / 2, box, box);
    const int pillHeight = QFontMetrics(safetyFont(option.font)).height() + 4;
    const int moreWidth = pillHeight + 6;
    g.more = QRect(rect.right() - sidePadding - moreWidth, rect.center().y() - pillHeight / 2, moreWidth, pillHeight);
    g.safety = QRect(g.more.left() - 6 - safetyWidth(option.font), rect.center().y() - pillHeight / 2,
                     safetyWidth(option.font), pillHeight);
    const int figures = figuresWidth(option.font);
    const int figuresLeft = g.safety.left() - gap - figures;
    g.size = QRect(figuresLeft, lineTop, figures, metrics.height());
    g.date = QRect(figuresLeft, secondTop, figures, small.height());
    const int textLeft = g.checkbox.right() + 10;
    const int textWidth = std::max(0, figuresLeft - 2 * gap - textLeft);
    g.title = QRect(textLeft, lineTop, textWidth, metrics.height());
    g.detail = QRect(textLeft, secondTop, textWidth, small.height());
    return g;
}

QSize CategoryItemDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    const QFontMetrics metrics(option.font);
    if (index.data(CategoryListModel::IsSectionRole).toBool())
        return QSize(200, metrics.height() + 20);
    const int small = QFontMetrics(smallFont(option.font)).height();
    return QSize(200, 2 * verticalPadding + metrics.height() + lineGap + small);
}

void CategoryItemDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    QStyleOptionViewItem opt = option;
    initStyleOption(&opt, index);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    if (index.data(CategoryListModel::IsSectionRole).toBool())
        paintSection(painter, opt, index);
    else
        paintItem(painter, opt, index);
    painter->restore();
}

void CategoryItemDelegate::paintSection(QPainter* painter, const QStyleOptionViewItem& option,
                                        const QModelIndex& index) const
{
    const QRect rect = option.rect.adjusted(sidePadding, 8, -sidePadding, -4);
    QFont bold = option.font;
    bold.setWeight(QFont::DemiBold);
    const QFontMetrics boldMetrics(bold);
    const QString size = index.data(CategoryListModel::SizeTextRole).toString();
    const int sizeWidth = boldMetrics.horizontalAdvance(size);

    painter->setPen(option.palette.color(QPalette::Mid));
    painter->drawLine(option.rect.left() + sidePadding, option.rect.top() + 3, option.rect.right() - sidePadding,
                      option.rect.top() + 3);
    painter->setFont(bold);
    painter->setPen(textColor(option, false));
    const int titleSpace = rect.width() - sizeWidth - gap;
    const QString title = boldMetrics.elidedText(index.data().toString(), Qt::ElideMiddle, titleSpace / 2);
    painter->drawText(rect, Qt::AlignLeft | Qt::AlignVCenter, title);
    painter->drawText(rect, Qt::AlignRight | Qt::AlignVCenter, size);

    const int subtitleLeft = rect.left() + boldMetrics.horizontalAdvance(title) + 10;
    const QRect subtitleRect(subtitleLeft, rect.top(), rect.right() - sizeWidth - gap - subtitleLeft, rect.height());
    painter->setFont(smallFont(option.font));
    painter->setPen(textColor(option, true));
    const QString subtitle = QFontMetrics(painter->font()).elidedText(
        index.data(CategoryListModel::SubtitleRole).toString(), Qt::ElideMiddle, subtitleRect.width());
    painter->drawText(subtitleRect, Qt::AlignLeft | Qt::AlignVCenter, subtitle);
}

void CategoryItemDelegate::paintItem(QPainter* painter, const QStyleOptionViewItem& option,
                                     const QModelIndex& index) const
{
    const QStyle* style = option.widget ? option.widget->style() : QApplication::style();
    QStyleOptionViewItem panel = option;
    panel.text.clear();
    panel.features &= ~QStyleOptionViewItem::HasCheckIndicator;
    style->drawPrimitive(QStyle::PE_PanelItemViewItem, &panel, painter, option.widget);

    const Geometry g = geometry(option, index);
    paintCheckbox(painter, option, index, g.checkbox);
    paintTitle(painter, option, index, g.title);
    paintDetail(painter, option, index, g.detail);

    const CleanupItem* item = m_model->itemAt(index);
    painter->setFont(option.font);
    painter->setPen(textColor(option, false));
    painter->drawText(g.size, Qt::AlignRight | Qt::AlignVCenter, ByteCount::format(item->size));
    if (item->date) {
        painter->setFont(smallFont(option.font));
        painter->setPen(textColor(option, true));
        painter->drawText(g.date, Qt::AlignRight | Qt::AlignVCenter, RelativeDate::format(*item->date));
    }
    paintSafety(painter, option, index, g.safety);
    paintMoreButton(painter, option, g.more);
}

// Shown where the person is: under the pointer, and on the current row for the keyboard.
void CategoryItemDelegate::paintMoreButton(QPainter* painter, const QStyleOptionViewItem& option, const QRect& rect) const
{
    if (!(option.state & (QStyle::State_MouseOver | QStyle::State_HasFocus | QStyle::State_Selected)))
        return;
    painter->setPen(Qt::NoPen);
    painter->setBrush(option.palette.color(QPalette::Button));
    painter->drawRoundedRect(rect, rect.height() / 2.0, rect.height() / 2.0);
    // The pill keeps the button colour on a selected row too, so its dots do as well.
    painter->setPen(option.palette.color(QPalette::ButtonText));
    painter->setFont(option.font);
    painter->drawText(rect, Qt::AlignCenter, QStringLiteral("•••"));
}

void CategoryItemDelegate::paintCheckbox(QPainter* painter, const QStyleOptionViewItem& option,
                                         const QModelIndex& index, const QRect& rect) const
{
    const auto kind = static_cast<CategoryListModel::Checkbox>(index.data(CategoryListModel::CheckboxRole).toInt());
    if (kind == CategoryListModel::Checkbox::none)
        return;
    QStyleOptionViewItem box = option;
    box.rect = rect;
    box.state &= ~(QStyle::State_On | QStyle::State_Off | QStyle::State_Selected | QStyle::State_MouseOver);
    box.state |= index.data(Qt::CheckStateRole).value<Qt::CheckState>() == Qt::Checked ? QStyle::State_On
                                                                                        : QStyle::State_Off;
    const bool checked = box.state & QStyle::State_On;
    const bool unusable = kind != CategoryListModel::Checkbox::usable && !checked;
    if (unusable) {
        box.state &= ~QStyle::State_Enabled;
        // Some styles draw a disabled box almost like an enabled one; fade it so it reads as off.
        painter->setOpacity(0.45);
    }
    const QStyle* style = option.widget ? option.widget->style() : QApplication::style();
    style->drawPrimitive(QStyle::PE_IndicatorItemViewItemCheck, &box, painter, option.widget);
    painter->setOpacity(1.0);
}

void CategoryItemDelegate::paintTitle(QPainter* painter, const QStyleOptionViewItem& option,
                                      const QModelIndex& index, const QRect& rect) const
{
    const CleanupItem* item = m_model->itemAt(index);
    const QFontMetrics metrics(option.font);
    const QFont badgeFont = smallFont(option.font);
    const QFontMetrics badgeMetrics(badgeFont);
    const QString badge = item->badge.value_or(QString());
    const int badgeWidth = badge.isEmpty() ? 0 : std::min(badgeMetrics.horizontalAdvance(badge) + 12, rect.width() / 3);
    const int titleSpace = rect.width() - (badgeWidth ? badgeWidth + 8 : 0);
    const QString title = metrics.elidedText(item->title, Qt::ElideMiddle, titleSpace);

    painter->setFont(option.font);
    painter->setPen(textColor(option, false));
    painter->drawText(rect, Qt::AlignLeft | Qt::AlignVCenter, title);
    if (badge.isEmpty())
        return;
    const int badgeLeft = rect.left() + metrics.horizontalAdvance(title) + 8;
    const QRect badgeRect(badgeLeft, rect.center().y() - badgeMetrics.height() / 2 - 1, badgeWidth,
                          badgeMetrics.height() + 2);
    const QColor secondary = textColor(option, true);
    painter->setPen(QPen(secondary, 0.8));
    painter->setBrush(Qt::NoBrush);
    painter->drawRoundedRect(QRectF(badgeRect).adjusted(0.5, 0.5, -0.5, -0.5), 4, 4);
    painter->setFont(badgeFont);
    painter->drawText(badgeRect, Qt::AlignCenter, badgeMetrics.elidedText(badge, Qt::ElideRight, badgeWidth - 8));
}

void CategoryItemDelegate::paintDetail(QPainter* painter, const QStyleOptionViewItem& option,
                                       const QModelIndex& index, const QRect& rect) const
{
    const CleanupItem* item = m_model->itemAt(index);
    const QFont font = smallFont(option.font);
    const QFontMetrics metrics(font);
    painter->setFont(font);
    int left = rect.left();
    if (item->lockedReason) {
        const bool selected = option.state & QStyle::State_Selected;
        const QString reason = metrics.elidedText(*item->lockedReason, Qt::ElideRight, rect.width());
        painter->setPen(selected ? option.palette.color(QPalette::HighlightedText) : lockedColor());
        painter->drawText(rect, Qt::AlignLeft | Qt::AlignVCenter, reason);
        left += metrics.horizontalAdvance(reason);
    }
    QString detail = RelativeDate::expand(item->detail);
    if (item->lockedReason && !detail.isEmpty())
        detail.prepend(QStringLiteral(" · "));
    const QRect rest(left, rect.top(), rect.right() - left, rect.height());
    painter->setPen(textColor(option, true));
    painter->drawText(rest, Qt::AlignLeft | Qt::AlignVCenter, metrics.elidedText(detail, Qt::ElideMiddle, rest.width()));
}

void CategoryItemDelegate::paintSafety(QPainter* painter, const QStyleOptionViewItem& option,
                                       const QModelIndex& index, const QRect& rect) const
{
    const Safety safety = m_model->itemAt(index)->safety(m_home);
    const bool selected = option.state & QStyle::State_Selected;
    QColor color = selected ? option.palette.color(QPalette::HighlightedText) : safetyColor(safety);
    QColor fill = color;
    fill.setAlpha(selected ? 60 : 26);
    painter->setPen(Qt::NoPen);
    painter->setBrush(fill);
    painter->drawRoundedRect(QRectF(rect), rect.height() / 2.0, rect.height() / 2.0);
    painter->setPen(color);
    painter->setFont(safetyFont(option.font));
    painter->drawText(rect, Qt::AlignCenter, Safeties::title(safety));
}

bool CategoryItemDelegate::toggle(QAbstractItemModel* model, const QModelIndex& index) const
{
    const auto kind = static_cast<CategoryListModel::Checkbox>(index.data(CategoryListModel::CheckboxRole).toInt());
    const bool checked = index.data(Qt::CheckStateRole).value<Qt::CheckState>() == Qt::Checked;
    if (kind != CategoryListModel::Checkbox::usable && !checked)
        return false;
    return model->setData(index, checked ? Qt::Unchecked : Qt::Checked, Qt::CheckStateRole);
}

bool CategoryItemDelegate::editorEvent(QEvent* event, QAbstractItemModel* model, const QStyleOptionViewItem& option,
                                       const QModelIndex& index)
{
    if (!m_model->itemAt(index))
        return false;
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key != Qt::Key_Space && key != Qt::Key_Select)
            return false;
        toggle(model, index);
        return true;
    }
    const bool release = event->type() == QEvent::MouseButtonRelease;
    if (!release && event->type() != QEvent::MouseButtonDblClick)
        return false;
    const auto* mouse = static_cast<QMouseEvent*>(event);
    if (mouse->button() != Qt::LeftButton)
        return false;
    const Geometry g = geometry(option, index);
    const QPoint at = mouse->position().toPoint();
    if (g.checkbox.adjusted(-4, -4, 4, 4).contains(at)) {
        if (release)
            toggle(model, index);
        return true;
    }
    if (g.more.contains(at)) {
        if (release)
            emit menuRequested(index, g.more.bottomLeft());
        return true;
    }
    if (g.safety.contains(at) && m_model->itemAt(index)->safety(m_home) == Safety::askAI) {
        if (release)
            emit askAIClicked(index);
        return true;
    }
    return false;
}

bool CategoryItemDelegate::helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                                     const QModelIndex& index)
{
    const CleanupItem* item = m_model->itemAt(index);
    if (!item || event->type() != QEvent::ToolTip)
        return QStyledItemDelegate::helpEvent(event, view, option, index);
    const Geometry g = geometry(option, index);
    QString text = index.data(Qt::ToolTipRole).toString();
    if (g.checkbox.adjusted(-4, -4, 4, 4).contains(event->pos()))
        text = index.data(CategoryListModel::CheckboxReasonRole).toString();
    else if (g.safety.contains(event->pos()))
        text = Safeties::help(item->safety(m_home));
    else if (g.detail.contains(event->pos()) && item->lockedReason)
        text = *item->lockedReason;
    if (text.isEmpty())
        QToolTip::hideText();
    else
        QToolTip::showText(event->globalPos(), text, view);
    return true;
}
