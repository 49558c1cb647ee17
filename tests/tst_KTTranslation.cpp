#include <KTArticleClass.h>
#include <KTClassification.h>
#include <KTCoverType.h>
#include <KTPageCountOrganizationListModel.h>
#include <KTPaperType.h>
#include <KTTranslation.h>

#include "KTTranslationFile.h"

#include <QThread>

#include <memory>

namespace {

QString pageCountText(bool countsPhotos)
{
    KTPageCountOrganizationListModel model;
    model.setPageOrganization(KTPageCountOrganization(KTIntRange(30, 30), 0), countsPhotos);
    return model.data(model.index(0, 0), Qt::DisplayRole).toString();
}

} // namespace

// In a program of its own: names stay in the language in which they were first asked for.
class tst_KTTranslation : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void installs()
    {
        QCOMPARE(pageCountText(false), u"30 Seiten"_s);
        QVERIFY(KTTranslation::install(QLocale(QLocale::German)));
        QVERIFY(!KTTranslation::install(QLocale(QLocale::French)));
        QCOMPARE(pageCountText(false), u"30 Seiten"_s);
        QVERIFY(KTTranslation::install(QLocale(QLocale::English, QLocale::UnitedStates)));
        QCOMPARE(pageCountText(false), u"30 pages"_s);
        bool isInstalled = true;
        const std::unique_ptr<QThread> thread(
            QThread::create([&] { isInstalled = KTTranslation::install(QLocale(QLocale::German)); }));
        thread->start();
        QVERIFY(thread->wait() && !isInstalled);
        // A language that is not there leaves the one that is.
        QVERIFY(!KTTranslation::install(QLocale(QLocale::French)));
        QCOMPARE(pageCountText(true), u"30 photos"_s);
        QVERIFY(KTTranslation::install(QLocale(QLocale::German, QLocale::Austria)));
        QCOMPARE(pageCountText(true), u"30 Fotos"_s);
        QVERIFY(KTTranslation::install(QLocale(QLocale::English)));
    }

    void translatesEveryName()
    {
        QSet<QString> german;
        QSet<QString> english;
        for (const KTTest::Message &message :
             KTTest::messagesIn(QStringLiteral(KT_TRANSLATIONS "/ktproductbase_en.ts"))) {
            german.insert(message.source);
            english.insert(message.translation);
        }
        german.subtract(english);
        QVERIFY(german.size() > 50);
        for (const KTClassification &classification : KTClassification::all()) {
            for (const KTKeywordInfo &keyword : classification.keywords())
                QVERIFY2(!german.contains(keyword.displayName), qPrintable(keyword.displayName));
        }
        for (const KTCoverTypeEnum cover : KTCoverType().allKnownEnumValues()) {
            const QStringList lines = KTCoverType(cover).toolTip().split(u"\nThe cover can"_s);
            QVERIFY2(lines.constFirst().isEmpty() || english.contains(lines.constFirst()),
                     qPrintable(lines.constFirst()));
        }
        QCOMPARE(KTArticleClass(KTArticleClassBook).toHumanReadable(), u"Photo book"_s);
        QCOMPARE(KTPaperType::createFromHumanReadable(u"Fotopapier Matt"_s).humanReadableName(),
                 u"Photo paper, matte"_s);
    }
};

QTEST_GUILESS_MAIN(tst_KTTranslation)
#include "tst_KTTranslation.moc"
