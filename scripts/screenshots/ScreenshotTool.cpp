// Draws the screenshots in docs/screenshots/ from the real screens over fixture data, under the
// offscreen platform: `dustlark-screenshots [--language CODE] FOLDER [NAME...]`, in English unless
// a language is named; with DUSTLARK_SMALLEST_WINDOW set, sheets are drawn over the window at its
// smallest size. Not a test; scripts/screenshots.sh runs it.
#include "Scenes.h"
#include "support/InterfaceLanguage.h"
#include "support/main/TestEnvironment.h"
#include "vocabulary/AppLanguage.h"

#include <QApplication>
#include <QDir>
#include <QPainter>
#include <QWidget>

#include <cstdio>

QImage withSheet(QWidget& window, QWidget& sheet)
{
    // At the smallest window the sheet is drawn at the size it has, not one fitted for the
    // picture, so a text it cuts shows as cut.
    const bool smallest = qEnvironmentVariableIsSet("DUSTLARK_SMALLEST_WINDOW");
    if (smallest) {
        window.resize(window.minimumSizeHint());
        QCoreApplication::processEvents();
    }
    QImage picture = window.grab().toImage();
    QPainter painter(&picture);
    painter.fillRect(picture.rect(), QColor(0, 0, 0, 40));
    if (!smallest)
        sheet.adjustSize();
    const QImage front = sheet.grab().toImage();
    const QPoint at((picture.width() - front.width()) / 2, 52);
    painter.fillRect(QRect(at, front.size()).adjusted(-1, -1, 1, 1), QColor(0, 0, 0, 70));
    painter.drawImage(at, front);
    return picture;
}

int main(int argc, char** argv)
{
    TestEnvironment environment;  // the fixtures' trash and settings stay in a temporary folder
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    AppLanguage::installEnglish();  // singular and plural of counted texts, as the app has them
    QStringList arguments = app.arguments().mid(1);
    QString language = QStringLiteral("en");
    if (arguments.size() >= 2 && arguments.first() == QLatin1String("--language")) {
        language = arguments.at(1);
        arguments = arguments.mid(2);
    }
    if (arguments.isEmpty()) {
        std::fprintf(stderr, "usage: dustlark-screenshots [--language CODE] FOLDER [NAME...]\n");
        return 2;
    }
    const InterfaceLanguage interface(language);
    if (language != QLatin1String("en") && !interface.installed()) {
        std::fprintf(stderr, "no catalogue for the language %s\n", qPrintable(language));
        return 2;
    }
    const QDir folder(arguments.first());
    QDir().mkpath(folder.path());
    int failures = 0;
    for (const Scene& scene : categoryScenes() + pageScenes() + storageScenes() + moveScenes()) {
        if (arguments.size() > 1 && !arguments.mid(1).contains(scene.name))
            continue;
        const QImage image = scene.draw();
        const bool saved = !image.isNull() && image.save(folder.filePath(scene.name));
        std::printf("%s %s\n", saved ? "wrote" : "FAILED", qPrintable(folder.filePath(scene.name)));
        failures += saved ? 0 : 1;
    }
    return failures == 0 ? 0 : 1;
}
