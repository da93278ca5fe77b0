// The toolbar of the main window: Scan / Stop, how far the scan has come, and free space.
#include "format/ByteCount.h"
#include "machinery/ScanProgress.h"
#include "model/AppModel.h"
#include "ui/MainWindow.h"

#include <QAction>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QStyle>
#include <QToolBar>

#include <algorithm>
#include <climits>

namespace {

constexpr int progressPollMs = 150;

}  // namespace

void MainWindow::makeToolbar()
{
    QToolBar* toolbar = addToolBar(QString());
    //: Name of the main toolbar (shown in its context menu)
    toolbar->setWindowTitle(tr("Toolbar"));
    toolbar->setMovable(false);
    toolbar->setFloatable(false);
    toolbar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    toolbar->setContextMenuPolicy(Qt::PreventContextMenu);

    m_scanAction = new QAction(this);
    m_scanAction->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_R));
    connect(m_scanAction, &QAction::triggered, this, &MainWindow::scanTriggered);
    toolbar->addAction(m_scanAction);

    auto* status = new QWidget(toolbar);
    m_progressLabel = new QLabel(status);
    m_progressLabel->setTextFormat(Qt::PlainText);
    m_progressLabel->setForegroundRole(QPalette::PlaceholderText);
    m_progressLabel->setMinimumWidth(120);
    m_progressLabel->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    m_freeSpace = new QLabel(status);
    m_freeSpace->setTextFormat(Qt::PlainText);
    auto* layout = new QHBoxLayout(status);
    layout->setContentsMargins(12, 0, 12, 0);
    layout->addWidget(m_progressLabel, 1);
    layout->addWidget(m_freeSpace);
    status->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    toolbar->addWidget(status);

    m_progressTimer.setInterval(progressPollMs);
    connect(&m_progressTimer, &QTimer::timeout, this, &MainWindow::pollProgress);
    connect(m_model, &AppModel::scanStateChanged, this, &MainWindow::scanStateDidChange);
    connect(m_model, &AppModel::systemStateChanged, this, &MainWindow::systemStateDidChange);
    scanStateDidChange();
    systemStateDidChange();
}

void MainWindow::scanTriggered()
{
    if (m_model->isBusyScanning())
        m_model->stopScan();
    else
        m_model->startScan();
}

void MainWindow::scanStateDidChange()
{
    const bool busy = m_model->isBusyScanning();
    if (busy) {
        //: Toolbar button that stops the running scan
        m_scanAction->setText(tr("Stop"));
        m_scanAction->setIcon(style()->standardIcon(QStyle::SP_BrowserStop));
    } else {
        //: Toolbar button that scans everything
        m_scanAction->setText(tr("Scan"));
        m_scanAction->setIcon(style()->standardIcon(QStyle::SP_BrowserReload));
    }
    if (m_model->isScanning() && !m_progressTimer.isActive())
        m_progressTimer.start();
    if (!m_model->isScanning()) {
        m_progressTimer.stop();
        m_progressLabel->clear();
    }
    pollProgress();
}

void MainWindow::pollProgress()
{
    if (!m_model->isScanning())
        return;
    const ScanProgress::Snapshot now = m_model->progress()->snapshot();
    const int entries = int(std::min(now.entries, qint64(INT_MAX)));
    //: Scan progress in the toolbar; %Ln is the number of files and folders looked at so far
    QString text = tr("Scanning… %Ln items", nullptr, entries);
    // The walk already writes the folder with "~" for the home folder.
    if (!now.currentFolder.isEmpty())
        text += QStringLiteral("  ·  ") + now.currentFolder;
    m_progressLabel->setText(m_progressLabel->fontMetrics().elidedText(text, Qt::ElideMiddle,
                                                                         m_progressLabel->width()));
    m_progressLabel->setToolTip(now.currentFolder);
}

void MainWindow::systemStateDidChange()
{
    const std::optional<qint64> free = m_model->systemState().freeBytes;
    //: Free space on the disk, in the toolbar; %1 is a size such as "120.5 GB"
    m_freeSpace->setText(free ? tr("%1 available").arg(ByteCount::format(*free)) : QString());
}
