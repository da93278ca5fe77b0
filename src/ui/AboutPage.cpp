#include "ui/AboutPage.h"

#include "ui/AppIcon.h"
#include "ui/PageLabels.h"
#include "ui/UpdateBox.h"
#include "update/UpdateChecker.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QFile>
#include <QGridLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

AboutPage::AboutPage(AppModel* model, QWidget* parent)
    : QWidget(parent), m_version(PageLabels::body({}, this)), m_updates(new UpdateBox(model, this))
{
    //: Version line of the About screen; %1 is the version (1.4), %2 the build number (140)
    m_version->setText(tr("Version %1 (%2)").arg(UpdateChecker::currentVersion()).arg(UpdateChecker::currentBuild()));
    m_version->setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(24, 20, 24, 20);
    layout->setSpacing(10);
    layout->addWidget(makeHeader());
    //: The app's promise, on the overview and the About screen
    layout->addWidget(PageLabels::body(tr("A scan only reads. You choose what goes to the Trash."), this));
    layout->addSpacing(12);
    //: Heading of the update check on the About screen
    layout->addWidget(PageLabels::heading(tr("Updates"), this));
    layout->addWidget(m_updates);
    layout->addSpacing(12);
    layout->addWidget(makeLicences());
    layout->addStretch(1);
}

QWidget* AboutPage::makeHeader()
{
    auto* header = new QWidget(this);
    auto* icon = new QLabel(header);
    icon->setPixmap(AppIcon::pixmap(96, devicePixelRatioF()));
    auto* text = new QVBoxLayout;
    text->addStretch(1);
    text->addWidget(PageLabels::title(QStringLiteral("Dustlark"), header));
    text->addWidget(m_version);
    text->addStretch(1);
    auto* layout = new QHBoxLayout(header);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(16);
    layout->addWidget(icon);
    layout->addLayout(text, 1);
    return header;
}

QList<AboutPage::Library> AboutPage::libraries()
{
    const QString lgpl3 = QStringLiteral(":/licenses/LGPL-3");
    const QString gpl3 = QStringLiteral(":/licenses/GPL-3");
    return {
        //: Licence of Qt on the About screen
        {QStringLiteral("Qt"), tr("GNU Lesser General Public License, version 3"), {lgpl3, gpl3}},
        //: Licence of OpenSSL on the About screen
        {QStringLiteral("OpenSSL"), tr("Apache License, version 2.0"), {QStringLiteral(":/licenses/Apache-2.0")}},
        //: Licence of libplist on the About screen
        {QStringLiteral("libplist"), tr("GNU Lesser General Public License, version 2.1"),
         {QStringLiteral(":/licenses/LGPL-2.1")}},
    };
}

QString AboutPage::licenceText(const QString& resource)
{
    QFile file(resource);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QWidget* AboutPage::makeLicences()
{
    auto* section = new QWidget(this);
    auto* grid = new QGridLayout(section);
    grid->setContentsMargins(0, 0, 0, 0);
    //: Heading of the licences of the libraries Dustlark ships
    grid->addWidget(PageLabels::heading(tr("Libraries and Licences"), section), 0, 0, 1, 4);
    //: Note above the licences on the About screen
    grid->addWidget(PageLabels::note(tr("Dustlark is built with these libraries and ships them under their licences. "
                                        "The LGPL libraries are linked so that they can be replaced by your own build."),
                                     section), 1, 0, 1, 4);
    int row = 2;
    for (const Library& library : libraries()) {
        grid->addWidget(PageLabels::body(library.name, section), row, 0);
        QLabel* licence = PageLabels::note(library.licence, section);
        licence->setWordWrap(false);
        grid->addWidget(licence, row, 1);
        //: Button that shows the full text of a library's licence
        auto* show = new QPushButton(tr("Show Licence"), section);
        connect(show, &QPushButton::clicked, this, [this, library] { showLicence(library); });
        grid->addWidget(show, row++, 2);
    }
    grid->setColumnStretch(3, 1);
    return section;
}

void AboutPage::showLicence(const Library& library)
{
    auto* dialog = new QDialog(this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setWindowTitle(library.name + QStringLiteral(" — ") + library.licence);
    auto* text = new QPlainTextEdit(dialog);
    text->setReadOnly(true);
    QStringList parts;
    for (const QString& resource : library.texts)
        parts.append(licenceText(resource));
    text->setPlainText(parts.join(QStringLiteral("\n\n")));
    auto* buttons = new QDialogButtonBox(dialog);
    //: Button that closes the window of a licence's text
    buttons->addButton(tr("Close"), QDialogButtonBox::RejectRole);
    connect(buttons, &QDialogButtonBox::rejected, dialog, &QDialog::close);
    auto* layout = new QVBoxLayout(dialog);
    layout->addWidget(text);
    layout->addWidget(buttons);
    dialog->resize(640, 560);
    dialog->open();
}
