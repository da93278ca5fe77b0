// The projects list with a selection, and the cleanup sheets over it.
#include "Scenes.h"
#include "format/RelativeDate.h"
#include "scan/ProjectScanner.h"
#include "support/Wait.h"
#include "ui/CategoryPage.h"
#include "ui/CleanupConfirmation.h"
#include "ui/CleanupSheet.h"
#include "ui/TrashProgress.h"
#include "ui/WindowFixture.h"

#include <QCoreApplication>
#include <QMessageBox>
#include <QProgressBar>
#include <QPushButton>
#include <QThread>

#include <atomic>

namespace {

struct Project {
    const char* folder;
    const char* project;
    const char* badge;
    qint64 size;
    int daysAgo;
};

const Project projects[] = {
    {"node_modules", "shop-web", "npm", 1'240'000'000, 3},
    {"build", "tracker-android", "Gradle", 2'310'000'000, 41},
    {".venv", "notebook-lab", "Python", 865'000'000, 120},
    {"DerivedData", "Weatherly", "Xcode", 3'480'000'000, 9},
    {"target", "ledger-rs", "Cargo", 5'120'000'000, 200},
    {"node_modules", "admin-dashboard", "npm", 712'000'000, 65},
    {".build", "swift-markdown-kit", "SwiftPM", 298'000'000, 14},
    {"dist", "landing-page", "Vite", 48'300'000, 0},
    {".gradle", "tracker-android", "Gradle", 402'000'000, 41},
    {"node_modules", "blog-2019", "npm", 534'000'000, 730},
    {".next", "shop-web", "Next.js", 187'000'000, 3},
    {"vendor", "legacy-api", "Composer", 96'400'000, 400},
};

CleanupItem projectRow(const QString& home, const Project& project, const QDateTime& now)
{
    const QString folder = home + "/Projects/" + project.project;
    CleanupItem row;
    row.id = folder + "/" + project.folder;
    row.category = CategoryID::projects;
    row.title = project.folder;
    row.badge = QString(project.badge);
    row.date = project.daysAgo == 0 ? now.addSecs(-3 * 3600) : now.addDays(-project.daysAgo);
    // The sources' own texts, so a picture in another language shows that language.
    row.detail = "~/Projects/" + QString(project.project) + " · "
                 + QCoreApplication::translate("ProjectScanner", "project changed %1").arg(RelativeDate::marker(*row.date));
    row.size = project.size;
    row.projectPath = folder;
    row.removal = Removal::trash({});
    if (project.daysAgo == 0)
        row.lockedReason = QCoreApplication::translate("Remover", "Changed in the last day; a session may be running.");
    return row;
}

// A window over a dozen build folders and two large files, scanned and showing Projects.
class ProjectsWindow {
public:
    ProjectsWindow()
    {
        const QString home = m_fixture.home().root();
        const QDateTime now = QDateTime::currentDateTime();
        for (const Project& project : projects)
            m_rows.append(projectRow(home, project, now));
        m_fixture.home().file("Movies/Final Cut Backups/wedding-raw.mov", 40'000);
        m_fixture.home().file("Downloads/Xcode_15.2.xip", 30'000);
        m_movie = fileRow(m_fixture.home(), CategoryID::largeFiles, "Movies/Final Cut Backups/wedding-raw.mov");
        m_movie.size = 18'400'000'000;
        m_movie.detail = "~/Movies/Final Cut Backups";
        m_xip = fileRow(m_fixture.home(), CategoryID::largeFiles, "Downloads/Xcode_15.2.xip");
        m_xip.size = 3'050'000'000;
        m_xip.detail = "~/Downloads";
        m_fixture.start({scannerOf(CategoryID::projects, m_rows, {ProjectScanner::unreadableNote(2)}),
                         scannerOf(CategoryID::largeFiles, {m_movie, m_xip})});
        m_fixture.window().resize(1280, 800);
        m_scanned = m_fixture.scan();
        m_fixture.show(CategoryID::projects);
    }

    bool scanned() const { return m_scanned; }
    WindowFixture& fixture() { return m_fixture; }
    const QList<CleanupItem>& rows() const { return m_rows; }
    const CleanupItem& movie() const { return m_movie; }
    const CleanupItem& xip() const { return m_xip; }

private:
    WindowFixture m_fixture;
    QList<CleanupItem> m_rows;
    CleanupItem m_movie;
    CleanupItem m_xip;
    bool m_scanned = false;
};

QImage categoryList()
{
    ProjectsWindow window;
    if (!window.scanned())
        return {};
    for (int i : {0, 1, 3, 4})
        window.fixture().model().setSelected(window.rows()[i], true);
    QCoreApplication::processEvents();
    return window.fixture().window().grab().toImage();
}

QImage cleanupConfirmation()
{
    ProjectsWindow window;
    if (!window.scanned())
        return {};
    AppModel& model = window.fixture().model();
    for (int i : {0, 1, 3, 4})
        model.setSelected(window.rows()[i], true);
    model.setSelected(window.movie(), true);
    model.prepareCleanup();
    CleanupSheet* sheet = window.fixture().window().cleanupSheet();
    return sheet ? withSheet(window.fixture().window(), *sheet) : QImage();
}

QImage cleanupResults()
{
    ProjectsWindow window;
    if (!window.scanned())
        return {};
    AppModel& model = window.fixture().model();
    model.setSelected(window.movie(), true);
    model.setSelected(window.xip(), true);
    model.prepareCleanup();
    CleanupSheet* sheet = window.fixture().window().cleanupSheet();
    if (!sheet)
        return {};
    sheet->confirmation()->confirmButton()->click();
    if (!waitUntil([&] { return model.cleanup() && model.cleanup()->phase() == CleanupSession::Phase::finished; }))
        return {};
    QCoreApplication::processEvents();
    return withSheet(window.fixture().window(), *window.fixture().window().cleanupSheet());
}

// The Trash being emptied: two of five items gone, held there until the picture is taken.
QImage emptyTrashProgress()
{
    WindowFixture fixture;
    CleanupItem trash;
    trash.id = "trash";
    trash.category = CategoryID::trash;
    trash.title = QCoreApplication::translate("TrashScanner", "Trash");
    trash.size = 2'140'000'000;
    trash.removal = Removal{Removal::EmptyTrash{}};
    auto taken = std::make_shared<std::atomic<bool>>(false);
    CategoryPage* page = fixture.open(CategoryID::trash, {trash}, [taken](AppModel::Services& services) {
        services.emptyTrash = [taken](const FreedesktopTrash::EmptyProgress& progress, const CancellationToken& stop) {
            progress(2, 5);
            while (!*taken && !stop.isCancelled())
                QThread::msleep(5);
            return std::optional<QString>();
        };
    });
    if (!page)
        return {};
    fixture.window().resize(1280, 800);
    page->emptyTrashButton()->click();
    QMessageBox* question = fixture.question();
    if (!question)
        return {};
    for (QAbstractButton* button : question->buttons()) {
        if (button->text() == QCoreApplication::translate("TrashEmptier", "Empty Trash"))
            button->click();
    }
    TrashProgress* sheet = fixture.window().findChild<TrashProgress*>();
    if (!sheet || !waitUntil([&] { return sheet->bar()->value() == 2; }))
        return {};
    const QImage picture = withSheet(fixture.window(), *sheet);
    *taken = true;
    waitUntil([&] { return !fixture.model().trashState().isEmptying; });
    return picture;
}

}  // namespace

// The list at the smallest size the window takes, where long words would clip first.
QImage smallestWindow()
{
    ProjectsWindow window;
    if (!window.scanned())
        return {};
    window.fixture().model().setSelected(window.rows()[0], true);
    window.fixture().window().resize(window.fixture().window().minimumSizeHint());
    QCoreApplication::processEvents();
    return window.fixture().window().grab().toImage();
}

QList<Scene> categoryScenes()
{
    return {
        {QStringLiteral("category-list.png"), categoryList},
        {QStringLiteral("smallest-window.png"), smallestWindow},
        {QStringLiteral("cleanup-confirmation.png"), cleanupConfirmation},
        {QStringLiteral("cleanup-results.png"), cleanupResults},
        {QStringLiteral("empty-trash-progress.png"), emptyTrashProgress},
    };
}
