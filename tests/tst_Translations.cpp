#include <KTArticleClass.h>
#include <KTCoverType.h>
#include <KTDlpType.h>
#include <KTFotoPaperType.h>
#include <KTOrientation.h>
#include <KTPageAlignment.h>
#include <KTPageBinding.h>
#include <KTPageCountOrganizationListModel.h>
#include <KTPaperType.h>
#include <KTSpaceMagnitude.h>

#include "KTTestSupport.h"

#include <QProcess>
#include <QSet>
#include <QTemporaryDir>
#include <QTranslator>
#include <QXmlStreamReader>

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

template <typename CLASS>
QStringList names(QString (CLASS::*name)() const)
{
    QStringList names;
    for (const auto value : CLASS().allKnownEnumValues())
        names.append((CLASS(value).*name)());
    return names;
}

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
        QFile texts(file);
        QVERIFY(texts.open(QIODevice::ReadOnly));
        QXmlStreamReader reader(&texts);
        QString context;
        while (!reader.atEnd()) {
            if (reader.readNext() != QXmlStreamReader::StartElement)
                continue;
            if (reader.name() == QLatin1String("name"))
                context = reader.readElementText();
            else if (reader.name() == QLatin1String("source"))
                myTranslator.texts.insert({context, reader.readElementText()});
        }
        QCoreApplication::installTranslator(&myTranslator);
    }

    void losesNoText()
    {
        KTPageCountOrganizationListModel model;
        model.setPageOrganization(KTPageCountOrganization::createForAdventCalendarWithDoorBackPrint(), false);
        QStringList texts {model.data(model.index(0, 0), Qt::DisplayRole).toString()};
        model.setPageOrganization(KTPageCountOrganization::createForAdventCalendarWithDoorBackPrint(), true);
        texts.append(model.data(model.index(0, 0), Qt::DisplayRole).toString());
        texts += names(&KTArticleClass::toHumanReadable) + names(&KTCoverType::humanReadableName)
            + names(&KTCoverType::toolTip) + names(&KTDlpType::visibleName)
            + names(&KTFotoPaperType::humanReadableName) + names(&KTOrientation::humanReadable)
            + names(&KTPageAlignment::describe) + names(&KTPageBinding::humanReadableName)
            + names(&KTPaperType::humanReadableName) + names(&KTSpaceMagnitude::humanReadableName);
        int marked = 0;
        for (const QString &text : texts) {
            QVERIFY2(text.isEmpty() || text.startsWith(QChar(0xa7)), qPrintable(text));
            marked += text.isEmpty() ? 0 : 1;
        }
        QVERIFY(marked > 100);
    }

private:
    KTMarkingTranslator myTranslator;
};

QTEST_GUILESS_MAIN(tst_Translations)
#include "tst_Translations.moc"
