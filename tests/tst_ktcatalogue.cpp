#include <KTNearestWord.h>
#include <KTTerminalText.h>

#include "KTTestSupport.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QtTest>

namespace {

struct Outcome
{
    int exitCode;
    QString output;
    QString errors;
};

/** Runs the program with the arguments, "SAMPLE" standing for the sample catalogue. */
Outcome run(const QString &arguments, const QByteArray &input = QByteArray())
{
    QStringList list = arguments.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    list.replaceInStrings(u"SAMPLE"_s, QStringLiteral(KT_SAMPLE_CATALOGUE));
    QProcess process;
    process.start(QStringLiteral(KT_PROGRAM), list);
    process.write(input);
    process.closeWriteChannel();
    process.waitForFinished();
    return {process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
            QString::fromUtf8(process.readAllStandardOutput()),
            QString::fromUtf8(process.readAllStandardError())};
}

} // namespace

class tst_ktcatalogue : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void writesOrderText_data()
    {
        QTest::addColumn<QString>("choices");
        QTest::addColumn<QString>("orderTxt");
        QTest::addColumn<QString>("mcf");
        QTest::newRow("preselected") << QString() << u"alcolor:black;coverphoto:yes;flyleafcolor:white"_s
                                     << u"alcolor:black,coverphoto:yes,flyleafcolor:white"_s;
        QTest::newRow("last choice wins") << u"--choose alcolor=sand --choose alcolor=red"_s
                                          << u"alcolor:red;coverphoto:yes;flyleafcolor:white"_s
                                          << u"alcolor:red,coverphoto:yes,flyleafcolor:white"_s;
        QTest::newRow("compound")
            << u"--choose giftboxcolor;boxstyle=white;ribbon"_s
            << u"alcolor:black;coverphoto:yes;flyleafcolor:white;giftboxcolor:white;boxstyle:ribbon"_s
            << u"alcolor:black,coverphoto:yes,flyleafcolor:white,giftboxcolor;boxstyle:white;ribbon"_s;
    }
    void writesOrderText()
    {
        QFETCH(QString, choices);
        QFETCH(QString, orderTxt);
        QFETCH(QString, mcf);
        const Outcome text = run(u"order SAMPLE --article 7301 "_s + choices);
        QCOMPARE(text.errors, QString());
        QCOMPARE(text.exitCode, 0);
        QVERIFY(text.output.contains(u"order text    "_s + orderTxt + QLatin1Char('\n')));
        QVERIFY(text.output.contains(u"MCF           "_s + mcf + QLatin1Char('\n')));
        const QJsonObject json
            = QJsonDocument::fromJson(run(u"order SAMPLE --json --article 7301 "_s + choices).output.toUtf8())
                  .object();
        QCOMPARE(json.value(u"orderText"_s).toString(), orderTxt);
        QCOMPARE(json.value(u"mcf"_s).toString(), mcf);
        QCOMPARE(json.value(u"production"_s).toObject().size(), orderTxt.count(QLatin1Char(':')));
    }

    void showsArticles()
    {
        const Outcome text = run(u"show SAMPLE --article 8840"_s);
        QCOMPARE(text.exitCode, 0);
        QVERIFY(text.output.startsWith(u"article 8840  Erinnerungsbox mit 30 Fotos\n"_s));
        QCOMPARE(text.output.count(u"box style"_s), 4);
        const QJsonArray all = QJsonDocument::fromJson(run(u"show SAMPLE --json"_s).output.toUtf8()).array();
        QVERIFY(all.size() >= 10);
        const QJsonObject first = all.first().toObject();
        QCOMPARE(first.value(u"id"_s).toInt(), 7301);
        QCOMPARE(first.value(u"options"_s).toArray().size(), 9);
        QCOMPARE(first.value(u"defaultChoice"_s).toObject().value(u"coverphoto"_s).toString(), u"yes"_s);
        QCOMPARE(run(u"show - --json"_s, "<catalogue/>").output, u"[]\n"_s);
    }

    void showsKeywords()
    {
        const QString text = run(u"keywords KTPageAlignment"_s).output;
        QVERIFY(text.startsWith(u"KTPageAlignment  alignment of page\n"_s));
        QVERIFY(text.contains(u"  fullpage  0x8    auf dieser Seite\n"_s));
        QVERIFY(text.endsWith(u"An unknown word and an empty text become 'left'.\n"_s));
        const QJsonArray tables = QJsonDocument::fromJson(run(u"keywords --json"_s).output.toUtf8()).array();
        QVERIFY(tables.size() >= 14);
        const QJsonObject paper = tables.at(6).toObject();
        QCOMPARE(paper.value(u"class"_s).toString(), u"KTPaperType"_s);
        QCOMPARE(paper.value(u"unknownWord"_s).toObject().value(u"written"_s).toString(), u"indigo"_s);
    }

    void refuses_data()
    {
        QTest::addColumn<QString>("arguments");
        QTest::addColumn<QByteArray>("input");
        QTest::addColumn<int>("exitCode");
        QTest::addColumn<QString>("message");
        const QByteArray one
            = "<catalogue><article id='1'><forms><form key='a\xe2\x80\xae' value='red'/></forms>"
              "</article></catalogue>";
        QTest::newRow("no command") << QString() << QByteArray() << 64 << u"a command is missing"_s;
        QTest::newRow("unknown command") << u"shw"_s << QByteArray() << 64 << u"did you mean 'show'?"_s;
        QTest::newRow("no file") << u"show"_s << QByteArray() << 64 << u"'show' needs one file"_s;
        QTest::newRow("unknown option") << u"show - --jsn"_s << QByteArray() << 64 << u"jsn"_s;
        QTest::newRow("no article number")
            << u"order -"_s << QByteArray() << 64 << u"'order' needs --article"_s;
        QTest::newRow("number beyond int")
            << u"show - --article 2147483648"_s << QByteArray() << 64 << u"is no number for --article"_s;
        QTest::newRow("choice without value")
            << u"order - --article 1 --choose a"_s << QByteArray() << 64 << u"'a' is not KEY=VALUE"_s;
        QTest::newRow("missing file") << u"show missing.xml"_s << QByteArray() << 2
                                      << u"missing.xml: error: No such file or directory"_s;
        QTest::newRow("directory") << u"show ."_s << QByteArray() << 2 << u".: error: "_s;
        QTest::newRow("broken behind the article")
            << u"show - --article 1"_s << QByteArray(one + "<") << 2 << u"-:1:94: error: "_s;
        QTest::newRow("unknown article")
            << u"order - --article 2"_s << one << 1 << u"-: there is no article 2"_s;
        QTest::newRow("unknown key") << u"order SAMPLE --article 7301 --choose alcolr=red"_s << QByteArray()
                                     << 1
                                     << u"has no option 'alcolr'; offered: alcolor, coverphoto, "
                                        "flyleafcolor, giftboxcolor;boxstyle; did you mean 'alcolor'?"_s;
        QTest::newRow("unknown value")
            << u"order SAMPLE --article 7301 --choose alcolor=reed"_s << QByteArray() << 1
            << u"does not offer 'reed' for 'alcolor'; offered: black, red, sand; did you mean 'red'?"_s;
        QTest::newRow("unknown class")
            << u"keywords KTPageAligment"_s << QByteArray() << 64 << u"did you mean 'KTPageAlignment'?"_s;
        QTest::newRow("two classes") << u"keywords KTDlpType KTDlpType"_s << QByteArray() << 64
                                     << u"'keywords' takes one class"_s;
        QTest::newRow("unknown format")
            << u"keywords --format csv"_s << QByteArray() << 64 << u"there are text, json and markdown"_s;
        QTest::newRow("invalid page count")
            << u"preview SAMPLE --article 7301 --pages 27 -o x.svg"_s << QByteArray() << 1
            << u"the nearest valid page counts: 26 and 28"_s;
        QTest::newRow("control characters")
            << u"order - --article 1 --choose b=c"_s << one << 1 << u"offered: a\\u202e"_s;
    }
    void refuses()
    {
        QFETCH(QString, arguments);
        QFETCH(QByteArray, input);
        QFETCH(QString, message);
        const Outcome outcome = run(arguments, input);
        QTEST(outcome.exitCode, "exitCode");
        QVERIFY2(outcome.errors.contains(message), qPrintable(outcome.errors));
        QCOMPARE(outcome.errors.count(QLatin1Char('\n')), 1);
        QCOMPARE(outcome.output, QString());
    }

    void helps()
    {
        for (const char *command : {"", "show ", "order ", "preview ", "keywords "}) {
            const Outcome outcome = run(QString::fromLatin1(command) + u"--help"_s);
            QCOMPARE(outcome.exitCode, 0);
            QVERIFY(outcome.output.contains(u"Example:\n  ktcatalogue "_s));
        }
        QVERIFY(run(u"--version"_s).output.contains(QString::fromLatin1(qVersion())));
    }

    void makesTextVisible_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("visible");
        QTest::newRow("plain") << u"Weiß \u20ac"_s << u"Weiß \u20ac"_s;
        QTest::newRow("escape") << u"\x1b[2J\n"_s << u"\\u001b[2J\\u000a"_s;
        QTest::newRow("C1 control") << u"\u009b"_s << u"\\u009b"_s;
        QTest::newRow("right-to-left override") << u"a\u202eb\u2066"_s << u"a\\u202eb\\u2066"_s;
        QTest::newRow("line separator") << u"\u2028"_s << u"\\u2028"_s;
        QTest::newRow("pair and lone surrogate")
            << QString(u"\U0001f600"_s + QChar(0xd800)) << u"\U0001f600\\ud800"_s;
    }
    void makesTextVisible()
    {
        QFETCH(QString, text);
        QTEST(KTTerminalText::visible(text), "visible");
        // The escaped document says the same and carries the text.
        const QJsonObject object {
            {u"text"_s, text}
        };
        const QString json = KTTerminalText::visibleJson(QString::fromUtf8(QJsonDocument(object).toJson()));
        QVERIFY(!json.contains(QChar(0x202e)) && !json.contains(QChar(0x9b)));
        if (!text.contains(QChar(0xd800)))
            QCOMPARE(QJsonDocument::fromJson(json.toUtf8()).object(), object);
    }

    void findsNearestWord_data()
    {
        QTest::addColumn<QString>("word");
        QTest::addColumn<QString>("nearest");
        QTest::newRow("dropped letter") << u"alcolr"_s << u"alcolor"_s;
        QTest::newRow("other case") << u"BOXSTYLE"_s << u"boxstyle"_s;
        QTest::newRow("two edits") << u"boxtyp"_s << u"boxtype"_s;
        QTest::newRow("exactly two") << u"xlcolox"_s << u"alcolor"_s;
        QTest::newRow("three edits") << u"xlxolox"_s << QString();
        QTest::newRow("empty") << QString() << QString();
    }
    void findsNearestWord()
    {
        QFETCH(QString, word);
        QTEST(KTNearestWord::find(word, {u"alcolor"_s, u"boxstyle"_s, u"boxtype"_s}), "nearest");
    }
};

QTEST_GUILESS_MAIN(tst_ktcatalogue)
#include "tst_ktcatalogue.moc"
