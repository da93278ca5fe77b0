#include "ui/Sidebar.h"

#include "format/ByteCount.h"
#include "ui/BusyGlyph.h"
#include "ui/CategoryIcon.h"

#include <QEvent>
#include <QHeaderView>
#include <QScrollBar>
#include <QStyledItemDelegate>

#include <algorithm>

namespace {

constexpr int destinationRole = Qt::UserRole + 1;

QVariant encode(const SidebarDestination& destination)
{
    const int category = destination.category ? static_cast<int>(*destination.category) : -1;
    return QVariantList{static_cast<int>(destination.kind), category};
}

// The highlight of the chosen row is the whole row in one colour: the focus frame the style
// draws around the title cell alone would cut it into pieces. The highlight itself shows
// where the keyboard is.
class WholeRowHighlight : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        QStyleOptionViewItem plain(option);
        plain.state &= ~QStyle::State_HasFocus;
        QStyledItemDelegate::paint(painter, plain, index);
    }
};

SidebarDestination decode(const QVariant& value)
{
    const QVariantList parts = value.toList();
    const auto kind = static_cast<SidebarDestination::Kind>(parts.value(0).toInt());
    const int category = parts.value(1).toInt();
    if (kind == SidebarDestination::Kind::category)
        return SidebarDestination::of(static_cast<CategoryID>(category));
    return SidebarDestination::screen(kind);
}

}  // namespace

Sidebar::Sidebar(QWidget* parent) : QTreeWidget(parent)
{
    setColumnCount(2);
    setHeaderHidden(true);
    setRootIsDecorated(false);
    setIndentation(14);
    setFrameShape(QFrame::NoFrame);
    // The margins around the rows take the list's colour, not the window's.
    setBackgroundRole(QPalette::Base);
    setAutoFillBackground(true);
    setIconSize(QSize(16, 16));
    setFocusPolicy(Qt::StrongFocus);
    setItemDelegate(new WholeRowHighlight(this));
    header()->setStretchLastSection(false);
    header()->setSectionResizeMode(0, QHeaderView::Stretch);
    header()->setSectionResizeMode(1, QHeaderView::ResizeToContents);

    using Kind = SidebarDestination::Kind;
    //: Sidebar entry of the overview screen
    addScreen(nullptr, tr("Overview"), SidebarDestination::screen(Kind::overview));
    //: Sidebar entry of the storage breakdown screen
    addScreen(nullptr, tr("Storage"), SidebarDestination::screen(Kind::storage));
    //: Sidebar entry of the screen of folders that are large because of many small files
    addScreen(nullptr, tr("Large Folders"), SidebarDestination::screen(Kind::largeFolders));
    //: Sidebar entry of the Safe List screen
    addScreen(nullptr, tr("Safe List"), SidebarDestination::screen(Kind::safeList));
    addGroups();
    //: Sidebar entry of the About screen
    addScreen(nullptr, tr("About"), SidebarDestination::screen(Kind::about));

    m_busyTimer.setInterval(BusyGlyph::frameIntervalMs);
    connect(&m_busyTimer, &QTimer::timeout, this, &Sidebar::advanceBusyFrames);
    connect(this, &QTreeWidget::itemSelectionChanged, this, &Sidebar::emitChoice);
}

void Sidebar::addGroups()
{
    QList<CategoryID> elsewhere;
    for (CleanerGroup group : CleanerGroups::allCases()) {
        QList<CategoryID> here;
        for (CategoryID category : CleanerGroups::categories(group))
            (Categories::canFill(category) ? here : elsewhere).append(category);
        addGroup(CleanerGroups::title(group), here);
    }
    // Categories whose tools this system can't run stay reachable, so their explanation can
    // say why they are empty, but apart from the ones that can fill.
    if (!elsewhere.isEmpty())
        //: Sidebar heading of the categories (Xcode, Simulators, iPhone & iPad) that can't fill on Linux
        addGroup(tr("Not on This Computer"), elsewhere);
}

void Sidebar::addGroup(const QString& title, const QList<CategoryID>& categories)
{
    auto* heading = new QTreeWidgetItem(this, {title});
    heading->setFlags(Qt::ItemIsEnabled);
    QFont font = heading->font(0);
    font.setBold(true);
    font.setPointSizeF(font.pointSizeF() * 0.9);
    heading->setFont(0, font);
    heading->setForeground(0, palette().color(QPalette::PlaceholderText));
    heading->setSizeHint(0, QSize(0, headingHeight()));
    heading->setTextAlignment(0, Qt::AlignLeft | Qt::AlignBottom);
    for (CategoryID category : categories) {
        QTreeWidgetItem* item = addScreen(heading, Categories::title(category), SidebarDestination::of(category));
        item->setIcon(0, CategoryIcon::icon(category, style()));
    }
    heading->setExpanded(true);
}

QTreeWidgetItem* Sidebar::addScreen(QTreeWidgetItem* parent, const QString& title,
                                    const SidebarDestination& destination)
{
    auto* item = parent ? new QTreeWidgetItem(parent, {title}) : new QTreeWidgetItem(this, {title});
    item->setData(0, destinationRole, encode(destination));
    item->setSizeHint(0, QSize(0, rowHeight()));
    item->setTextAlignment(1, Qt::AlignRight | Qt::AlignVCenter);
    item->setForeground(1, palette().color(QPalette::PlaceholderText));
    return item;
}

int Sidebar::rowHeight() const
{
    return fontMetrics().height() + 10;
}

int Sidebar::headingHeight() const
{
    return fontMetrics().height() + 16;
}

QTreeWidgetItem* Sidebar::itemFor(const SidebarDestination& destination) const
{
    const QVariant wanted = encode(destination);
    for (QTreeWidgetItemIterator it(const_cast<Sidebar*>(this)); *it; ++it) {
        if ((*it)->data(0, destinationRole) == wanted)
            return *it;
    }
    return nullptr;
}

QSize Sidebar::minimumSizeHint() const
{
    // The rows carry a fixed size hint, so the style measures each title itself.
    QStyleOptionViewItem option;
    initViewItemOption(&option);
    option.features |= QStyleOptionViewItem::HasDisplay | QStyleOptionViewItem::HasDecoration;
    option.decorationSize = iconSize();
    int titles = 0;
    for (QTreeWidgetItemIterator it(const_cast<Sidebar*>(this)); *it; ++it) {
        option.text = (*it)->text(0);
        option.icon = (*it)->icon(0);
        option.font = (*it)->font(0);
        option.fontMetrics = QFontMetrics(option.font);
        const int indent = (*it)->parent() ? indentation() : 0;
        titles = std::max(titles, indent + style()->sizeFromContents(QStyle::CT_ItemViewItem, &option, QSize(), this).width());
    }
    // The size column as wide as it gets: the largest size beside the busy glyph of a scan,
    // measured as the header measures it when it resizes the column to its contents.
    option.text = ByteCount::format(999'990'000'000);
    option.icon = busyFrame(0);
    option.font = font();
    option.fontMetrics = fontMetrics();
    const int sizes = style()->sizeFromContents(QStyle::CT_ItemViewItem, &option, QSize(), this).width();
    const int chrome = 8 + 6 + 2 * frameWidth() + verticalScrollBar()->sizeHint().width();
    return {titles + sizes + chrome, QTreeWidget::minimumSizeHint().height()};
}

void Sidebar::updateGeometries()
{
    QTreeWidget::updateGeometries();
    // A little air around the list, as a source list has; the tree resets the margins here.
    setViewportMargins(8, 6, 6, 6);
}

void Sidebar::select(const SidebarDestination& destination)
{
    if (QTreeWidgetItem* item = itemFor(destination)) {
        const QSignalBlocker blocker(this);
        setCurrentItem(item);
    }
}

void Sidebar::setScreenAvailable(const SidebarDestination& destination, bool available)
{
    if (QTreeWidgetItem* item = itemFor(destination))
        item->setFlags(available ? Qt::ItemIsEnabled | Qt::ItemIsSelectable : Qt::NoItemFlags);
}

void Sidebar::setCategorySize(CategoryID category, const QString& size)
{
    if (QTreeWidgetItem* item = itemFor(SidebarDestination::of(category)))
        item->setText(1, size);
}

// Only the row that changed: a scan's start and each arriving result touch one category, and
// every icon set through the model measures the size column again.
void Sidebar::setCategoryBusy(CategoryID category, bool busy)
{
    if (busy == m_busy.contains(category))
        return;
    if (busy)
        m_busy.insert(category);
    else
        m_busy.remove(category);
    if (QTreeWidgetItem* item = itemFor(SidebarDestination::of(category)))
        item->setIcon(1, busy ? busyFrame(m_busyStep) : QIcon());
    if (m_busy.isEmpty())
        m_busyTimer.stop();
    else if (!m_busyTimer.isActive())
        m_busyTimer.start();
}

void Sidebar::advanceBusyFrames()
{
    m_busyStep = (m_busyStep + 1) % BusyGlyph::frameCount;
    const QIcon frame = busyFrame(m_busyStep);
    {
        // Every frame has the same size, so the size column needs no measuring again: the
        // model stays quiet (it would measure once per row) and one repaint shows the new frame.
        const QSignalBlocker quiet(model());
        for (CategoryID category : m_busy) {
            if (QTreeWidgetItem* item = itemFor(SidebarDestination::of(category)))
                item->setIcon(1, frame);
        }
    }
    viewport()->update();
}

QIcon Sidebar::busyFrame(int step) const
{
    if (m_busyFrames.isEmpty()) {
        for (int each = 0; each < BusyGlyph::frameCount; ++each)
            m_busyFrames.append(BusyGlyph::frame(each, palette().color(QPalette::PlaceholderText)));
    }
    return m_busyFrames.at(step);
}

void Sidebar::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::PaletteChange)
        m_busyFrames.clear();
    QTreeWidget::changeEvent(event);
}

void Sidebar::emitChoice()
{
    const QList<QTreeWidgetItem*> chosen = selectedItems();
    if (chosen.isEmpty())
        return;
    const QVariant data = chosen.first()->data(0, destinationRole);
    if (data.isValid())
        emit destinationChosen(decode(data));
}
