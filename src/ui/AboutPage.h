#pragma once

#include <QWidget>

#include <functional>

class AppModel;
class QLabel;
class UpdateBox;

// The About screen: the app's icon, name, version and build, its promise, the update check,
// and the licences of the libraries it ships with their full texts. GUI thread only.
class AboutPage : public QWidget {
    Q_OBJECT

public:
    explicit AboutPage(AppModel* model, QWidget* parent = nullptr);

    QLabel* versionLabel() const { return m_version; }
    UpdateBox* updates() const { return m_updates; }

    // One shipped library: who it is, under which licence, and the resource paths of the
    // licence texts that must travel with it.
    struct Library {
        QString name;
        QString licence;
        QStringList texts;
    };
    static QList<Library> libraries();
    // The full text of a licence resource; empty when it is missing from the build.
    static QString licenceText(const QString& resource);

private:
    QWidget* makeHeader();
    QWidget* makeLicences();
    void showLicence(const Library& library);

    QLabel* m_version;
    UpdateBox* m_updates;
};
