#include "support/TempTree.h"
#include "update/Updater.h"

#include <QCryptographicHash>
#include <QFile>

#include <gtest/gtest.h>

namespace {

const QString didNotPass = QStringLiteral("The downloaded update didn't pass the check. This copy wasn't changed.");

// A one-character change at `index` of a hexadecimal digest.
QString changedAt(QString digest, int index)
{
    digest[index] = digest[index] == QLatin1Char('0') ? QLatin1Char('1') : QLatin1Char('0');
    return digest;
}

}  // namespace

TEST(Updater, OnlyACopyInAWritableFolderOfItsOwnMayReplaceItself)
{
    TempTree tree;
    const QString app = tree.dir(QStringLiteral("Applications/Dustlark.app"));
    EXPECT_TRUE(Updater::canInstallHere(app));
    EXPECT_FALSE(Updater::canInstallHere(
        QStringLiteral("/private/var/folders/x/T/AppTranslocation/1A2B/d/Dustlark.app")));
    EXPECT_FALSE(Updater::canInstallHere(QStringLiteral("/Volumes/Dustlark 1.4/Dustlark.app")));

    QFile::setPermissions(tree.path(QStringLiteral("Applications")), QFile::ReadOwner | QFile::ExeOwner
                                                                          | QFile::ReadOther | QFile::ExeOther);
    const auto readOnly = tree.runUnprivileged([&] { return QByteArray(Updater::canInstallHere(app) ? "yes" : "no"); });
    ASSERT_TRUE(readOnly);
    EXPECT_EQ(*readOnly, QByteArray("no"));
}

TEST(Updater, DemandsOurIdentifierAndTeamInTheSignature)
{
    EXPECT_EQ(Updater::requirement(QStringLiteral("app.dustlark.Dustlark"), QStringLiteral("AB12CD34EF")),
              QStringLiteral("anchor apple generic and identifier \"app.dustlark.Dustlark\" and certificate "
                             "leaf[field.1.2.840.113635.100.6.1.13] exists and certificate leaf[subject.OU] = \"AB12CD34EF\""));
}

TEST(Updater, AnImageMustMatchItsDigestExactly)
{
    TempTree tree;
    QByteArray content(3'000'000, 'd');  // spans several read chunks
    content[2'500'000] = 'e';
    const QString image = tree.file(QStringLiteral("Dustlark-update-1update.dmg"), content);
    const QString digest = QString::fromLatin1(QCryptographicHash::hash(content, QCryptographicHash::Sha256).toHex());

    EXPECT_EQ(Updater::checkImage(image, digest), std::nullopt);
    EXPECT_EQ(Updater::checkImage(image, digest.toUpper()), std::nullopt);
    EXPECT_EQ(Updater::checkImage(image, changedAt(digest, 0)), didNotPass);
    EXPECT_EQ(Updater::checkImage(image, changedAt(digest, 63)), didNotPass);
    EXPECT_EQ(Updater::checkImage(image, digest.left(63)), didNotPass);
    EXPECT_EQ(Updater::checkImage(image, std::nullopt), didNotPass) << "no digest: refused";
    EXPECT_EQ(Updater::checkImage(image, QString()), didNotPass);

    const auto missing = Updater::checkImage(tree.path(QStringLiteral("gone.dmg")), digest);
    ASSERT_TRUE(missing);
    EXPECT_TRUE(missing->startsWith(QStringLiteral("Couldn't install the update (")));
    EXPECT_TRUE(missing->endsWith(QStringLiteral("). This copy wasn't changed.")));
    EXPECT_GT(missing->size(), QStringLiteral("Couldn't install the update (). This copy wasn't changed.").size());
}
