// Pictures of the main screens for the docs, taken only when DUSTLARK_SCREENSHOTS names the
// folder to write them to.
#include "WindowFixture.h"
#include "support/Wait.h"
#include "ui/CategoryPage.h"
#include "ui/CleanupConfirmation.h"
#include "ui/CleanupSheet.h"

#include <QDir>
#include <QPainter>
#include <QPushButton>

#include <gtest/gtest.h>

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
    CleanupItem item = [&] {
        CleanupItem row;
        row.id = folder + "/" + project.folder;
        row.category = CategoryID::projects;
        row.title = project.folder;
        row.badge = QString(project.badge);
        row.detail = "~/Projects/" + QString(project.project) + " · rebuilt by " + project.badge;
        row.size = project.size;
        row.projectPath = folder;
        row.date = project.daysAgo == 0 ? now.addSecs(-3 * 3600) : now.addDays(-project.daysAgo);
        row.removal = Removal::trash({});
        return row;
    }();
    if (project.daysAgo == 0)
        item.lockedReason = "Changed in the last day; a build may be running.";
    return item;
}

// The window with a sheet laid over it the way macOS shows one: centred under the toolbar.
QImage withSheet(QWidget& window, QWidget& sheet)
{
    QImage picture = window.grab().toImage();
    QPainter painter(&picture);
    painter.fillRect(picture.rect(), QColor(0, 0, 0, 40));
    sheet.adjustSize();
    const QImage front = sheet.grab().toImage();
    const QPoint at((picture.width() - front.width()) / 2, 52);
    painter.fillRect(QRect(at, front.size()).adjusted(-1, -1, 1, 1), QColor(0, 0, 0, 70));
    painter.drawImage(at, front);
    return picture;
}

void save(const QImage& image, const QString& name)
{
    const QString folder = qEnvironmentVariable("DUSTLARK_SCREENSHOTS");
    QDir().mkpath(folder);
    EXPECT_TRUE(image.save(folder + "/" + name)) << name.toStdString();
}

}  // namespace

TEST(Screenshots, CategoryListAndCleanupSheets)
{
    if (qEnvironmentVariableIsEmpty("DUSTLARK_SCREENSHOTS"))
        GTEST_SKIP() << "set DUSTLARK_SCREENSHOTS to a folder to take the pictures";
    WindowFixture fixture;
    const QString home = fixture.home().root();
    const QDateTime now = QDateTime::currentDateTime();
    QList<CleanupItem> rows;
    for (const Project& project : projects)
        rows.append(projectRow(home, project, now));
    fixture.home().file("Movies/Final Cut Backups/wedding-raw.mov", 40'000);
    fixture.home().file("Downloads/Xcode_15.2.xip", 30'000);
    CleanupItem movie = fileRow(fixture.home(), CategoryID::largeFiles, "Movies/Final Cut Backups/wedding-raw.mov");
    movie.size = 18'400'000'000;
    movie.detail = "~/Movies/Final Cut Backups";
    CleanupItem xip = fileRow(fixture.home(), CategoryID::largeFiles, "Downloads/Xcode_15.2.xip");
    xip.size = 3'050'000'000;
    xip.detail = "~/Downloads";
    fixture.start({scannerOf(CategoryID::projects, rows, {"Some folders in ~/Archive couldn't be read."}),
                   scannerOf(CategoryID::largeFiles, {movie, xip})});
    fixture.window().resize(1280, 800);
    ASSERT_TRUE(fixture.scan());
    fixture.show(CategoryID::projects);
    for (int i : {0, 1, 3, 4})
        fixture.model().setSelected(rows[i], true);
    QCoreApplication::processEvents();
    save(fixture.window().grab().toImage(), "category-list.png");

    fixture.model().setSelected(movie, true);
    fixture.model().prepareCleanup();
    CleanupSheet* sheet = fixture.window().cleanupSheet();
    ASSERT_TRUE(sheet);
    save(withSheet(fixture.window(), *sheet), "cleanup-confirmation.png");

    fixture.model().closeCleanup();
    fixture.model().clearSelection();
    fixture.model().setSelected(movie, true);
    fixture.model().setSelected(xip, true);
    fixture.model().prepareCleanup();
    fixture.window().cleanupSheet()->confirmation()->confirmButton()->click();
    ASSERT_TRUE(waitUntil([&] {
        return fixture.model().cleanup() && fixture.model().cleanup()->phase() == CleanupSession::Phase::finished;
    }));
    QCoreApplication::processEvents();
    save(withSheet(fixture.window(), *fixture.window().cleanupSheet()), "cleanup-results.png");
}
