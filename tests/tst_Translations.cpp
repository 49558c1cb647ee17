#include <KTClassification.h>
#include <KTCoverType.h>
#include <KTPageCountOrganizationListModel.h>

#include "KTTestSupport.h"
#include "KTTranslationFile.h"

#include <QProcess>
#include <QSet>
#include <QTemporaryDir>
#include <QTranslator>

namespace {

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
        const QTemporaryDir directory;
        const QString file = directory.filePath(u"texts.ts"_s);
        QCOMPARE(QProcess::execute(QStringLiteral(KT_LUPDATE),
                                   {u"-silent"_s, QStringLiteral(KT_LIBS), u"-ts"_s, file}),
                 0);
        for (const KTTest::Message &message : KTTest::messagesIn(file))
            myTranslator.texts.insert({message.context, message.source});
        QCoreApplication::installTranslator(&myTranslator);
    }

    void isComplete()
    {
        QSet<QPair<QString, QString>> texts;
        for (const KTTest::Message &message :
             KTTest::messagesIn(QStringLiteral(KT_TRANSLATIONS "/ktproductbase_en.ts"))) {
            texts.insert({message.context, message.source});
            QVERIFY2(message.type.isEmpty() && !message.translation.isEmpty(), qPrintable(message.source));
            for (const QString &place : {u"%1"_s, u"%2"_s, u"\n"_s})
                QCOMPARE(message.translation.count(place), message.source.count(place));
        }
        QCOMPARE(texts, myTranslator.texts);
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
