#include <KTCatalogueChecker.h>
#include <KTNearestWord.h>
#include <KTTerminalText.h>

#include "KTTestSupport.h"

#include <QBuffer>
#include <QJsonDocument>
#include <QJsonObject>

/** What the program does not show by itself; see tst_Sessions for the rest. */
class tst_ktcatalogue : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void makesTextVisible()
    {
        const auto visible = [](const QString &text) {
            // The escaped document says the same.
            const QJsonObject object {
                {u"text"_s, text}
            };
            const QString json
                = KTTerminalText::escapedJson(QString::fromUtf8(QJsonDocument(object).toJson()));
            const bool isSame = QJsonDocument::fromJson(json.toUtf8()).object() == object;
            const bool isVisible = !json.contains(QChar(0x202e)) && !json.contains(QChar(0x9b));
            return KTTest::text(KTTerminalText::escaped(text), isSame, isVisible);
        };
        KTTest::check(visible,
                      {"Weiß \u20ac -> Weiß \u20ac|+|+", "\x1b[2J\n -> \\u001b[2J\\u000a|+|+",
                       "\u007f\u009b -> \\u007f\\u009b|+|+", "a\u202eb\u2066 -> a\\u202eb\\u2066|+|+",
                       "\u2028 -> \\u2028|+|+",
                       u"\U0001f600"_s + QChar(0xd800) + u" -> \U0001f600\\ud800|+|+"_s});
    }

    // What is long or wrong over and over takes no time out of proportion.
    void bearsHostileFiles()
    {
        const QByteArray begin = "<catalogue><article id='1'>";
        const QByteArray commas(65536, ',');
        const QByteArray option = "<form key='a;' value='1;2' color='x' preselected='1'/>";
        const auto lastRule = [](QByteArray file) {
            QBuffer buffer(&file);
            buffer.open(QIODevice::ReadOnly);
            KTRule last = KTRule::UnreadableFile;
            KTCatalogueChecker checker([&last](const KTFinding &finding) { last = finding.rule; });
            checker.check(u"-"_s, &buffer);
            return last;
        };
        for (const QByteArray &file :
             {QByteArray(begin + QByteArray("<x y='" + commas + "'/>").repeated(50)),
              QByteArray("<catalogue>" + QByteArray("<article paper='" + commas + "'/>").repeated(10)),
              QByteArray(begin + "<forms>" + option.repeated(2000))})
            QCOMPARE(lastRule(file), KTRule::NotWellFormed);
    }

    void findsNearestWord()
    {
        const auto nearest = [](const QString &word) {
            return KTNearestWord::find(word, {u"alcolor"_s, u"boxstyle"_s, u"boxtype"_s});
        };
        // One and two edits, one of them in another case, the better of two, and three.
        KTTest::check(nearest,
                      {"alcolr -> alcolor", "BOXSTYLE -> boxstyle", "boxtyp -> boxtype", "xlcolox -> alcolor",
                       "xlxolox -> ", " -> "});
    }
};

QTEST_GUILESS_MAIN(tst_ktcatalogue)
#include "tst_ktcatalogue.moc"
