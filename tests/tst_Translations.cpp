#include <KTClassification.h>
#include <KTCoverType.h>
#include <KTPageCountOrganizationListModel.h>

#include "KTTestSupport.h"
#include "KTTranslationFile.h"

#include <QDir>
#include <QProcess>
#include <QSet>
#include <QTemporaryDir>
#include <QTranslator>

namespace {

/** What lupdate finds in the folders. */
QVector<KTTest::Message> messagesOf(const QStringList &folders)
{
    const QTemporaryDir directory;
    const QString file = directory.filePath(u"texts.ts"_s);
    const bool isFound
        = QProcess::execute(QStringLiteral(KT_LUPDATE), folders + QStringList {u"-silent"_s, u"-ts"_s, file})
        == 0;
    return isFound ? KTTest::messagesIn(file) : QVector<KTTest::Message>();
}

/** Marks every text that lupdate found in the sources, so that a text it lost stays unmarked. */
class KTMarkingTranslator : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *source, const char *, int) const override
    {
        const QPair<QString, QString> text(QString::fromUtf8(context), QString::fromUtf8(source));
        return texts.contains(text) ? u"\u00a7"_s + text.second : QString();
    }

    QSet<QPair<QString, QString>> texts;
};

} // namespace

class tst_Translations : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase()
    {
        // What KT::Catalogue says stands in English, in a file of its own.
        const QString libs = QStringLiteral(KT_SOURCE_DIR "/libs");
        QStringList productFolders;
        for (const QFileInfo &folder : QDir(libs).entryInfoList(QDir::Dirs | QDir::NoDotAndDotDot)) {
            if (folder.fileName() != u"KTCatalogue"_s)
                productFolders.append(folder.filePath());
        }
        for (const KTTest::Message &message : messagesOf(productFolders))
            myTranslator.texts.insert({message.context, message.source});
        QCoreApplication::installTranslator(&myTranslator);
    }

    void isComplete_data()
    {
        const KTTest::Rows<QString> row;
        row("ktproductbase_en");
        row("ktcatalogue_de");
    }
    void isComplete()
    {
        const auto [name] = KTTest::row<QString>();
        QSet<QPair<QString, QString>> texts;
        for (const KTTest::Message &message :
             KTTest::messagesIn(QStringLiteral(KT_SOURCE_DIR "/translations/%1.ts").arg(name))) {
            texts.insert({message.context, message.source});
            QVERIFY2(message.type.isEmpty() && !message.translation.isEmpty(), qPrintable(message.source));
            for (const QString &place : {u"%1"_s, u"%2"_s, u"%3"_s, u"%4"_s, u"%5"_s, u"\n"_s})
                QCOMPARE(message.translation.count(place), message.source.count(place));
        }
        QSet<QPair<QString, QString>> expected = myTranslator.texts;
        if (name == u"ktcatalogue_de"_s) {
            expected.clear();
            for (const KTTest::Message &message :
                 messagesOf({QStringLiteral(KT_SOURCE_DIR "/libs/KTCatalogue"),
                             QStringLiteral(KT_SOURCE_DIR "/tools")}))
                expected.insert({message.context, message.source});
        }
        QCOMPARE(texts, expected);
        QVERIFY(texts.size() >= 75);
    }

    void losesNoText()
    {
        QStringList texts;
        for (const KTClassification &classification : KTClassification::all()) {
            for (const KTKeywordInfo &keyword : classification.keywords())
                texts.append(keyword.displayName);
        }
        for (const KTCoverTypeEnum cover : KTCoverType().allKnownEnumValues())
            texts.append(KTCoverType(cover).toolTip());
        KTPageCountOrganizationListModel model;
        for (const bool countsPhotos : {false, true}) {
            model.setPageOrganization(KTPageCountOrganization(KTIntRange(1, 1), 0), countsPhotos);
            texts.append(model.data(model.index(0, 0), Qt::DisplayRole).toString());
        }
        texts.removeAll(QString());
        QVERIFY(texts.size() > 100);
        for (const QString &text : qAsConst(texts))
            QVERIFY2(text.startsWith(QChar(0xa7)), qPrintable(text));
    }

private:
    KTMarkingTranslator myTranslator;
};

QTEST_GUILESS_MAIN(tst_Translations)
#include "tst_Translations.moc"
