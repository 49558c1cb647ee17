#include <KTCheckRules.h>
#include <KTNearestWord.h>
#include <KTTerminalText.h>

#include "KTTestSupport.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>

namespace {

struct Outcome
{
    int exitCode;
    QString output;
    QString errors;
};

/** Runs the program with the arguments; "SAMPLE" stands for the sample catalogue. */
Outcome run(const QString &arguments, const QByteArray &input = QByteArray(),
            const QString &outputFile = QString())
{
    const QString sample = QStringLiteral(KT_SAMPLE_CATALOGUE);
    QProcess process;
    process.setStandardOutputFile(outputFile);
    process.start(QStringLiteral(KT_PROGRAM),
                  QString(arguments).replace(u"SAMPLE"_s, sample).split(u' ', Qt::SkipEmptyParts));
    process.write(input);
    process.closeWriteChannel();
    process.waitForFinished();
    return {process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
            QString::fromUtf8(process.readAllStandardOutput()),
            QString::fromUtf8(process.readAllStandardError()).replace(sample, u"SAMPLE"_s)};
}

QJsonDocument json(const QString &arguments, const QByteArray &input = QByteArray())
{
    return QJsonDocument::fromJson(run(arguments, input).output.toUtf8());
}

/** A catalogue with the attributes, and children after a ">", of an article. */
QByteArray article(const char *text)
{
    return QByteArray("<catalogue>\n<article id='4' productname='ALB42' ") + text + "</article></catalogue>";
}

} // namespace

class tst_ktcatalogue : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void writesOrderText_data()
    {
        const KTTest::Rows<QString, QString, QString> row;
        row("--choose alcolor=sand --choose alcolor=red", "alcolor:red;coverphoto:yes;flyleafcolor:white",
            "alcolor:red,coverphoto:yes,flyleafcolor:white");
        row("--choose giftboxcolor;boxstyle=white;ribbon",
            "alcolor:black;coverphoto:yes;flyleafcolor:white;giftboxcolor:white;boxstyle:ribbon",
            "alcolor:black,coverphoto:yes,flyleafcolor:white,giftboxcolor;boxstyle:white;ribbon");
    }
    void writesOrderText()
    {
        const auto [choices, orderTxt, mcf] = KTTest::row<QString, QString, QString>();
        const QString arguments = u"order SAMPLE --article 7301 "_s + choices;
        const Outcome text = run(arguments);
        QCOMPARE(text.errors, QString());
        QCOMPARE(text.exitCode, 0);
        QVERIFY(text.output.contains(u"order text    %1\nMCF           %2\n"_s.arg(orderTxt, mcf)));
        const QJsonDocument document = json(arguments + u" --json"_s);
        QCOMPARE(document[u"orderText"_s].toString(), orderTxt);
        QCOMPARE(document[u"mcf"_s].toString(), mcf);
        QCOMPARE(document[u"production"_s].toObject().size(), orderTxt.count(u':'));
    }

    void showsArticles()
    {
        const Outcome text = run(u"show SAMPLE --article 8840"_s);
        QCOMPARE(text.exitCode, 0);
        QVERIFY(text.output.startsWith(u"article 8840  Erinnerungsbox mit 30 Fotos\n"_s));
        QCOMPARE(text.output.count(u"box style"_s), 4);
        const QJsonDocument all = json(u"show SAMPLE --json"_s);
        QVERIFY(all.array().size() >= 10);
        QCOMPARE(all[0][u"id"_s].toInt(), 7301);
        QCOMPARE(all[0][u"options"_s].toArray().size(), 9);
        QCOMPARE(all[0][u"defaultChoice"_s][u"coverphoto"_s].toString(), u"yes"_s);
        QCOMPARE(run(u"show - --json"_s, "<catalogue/>").output, u"[]\n"_s);
    }

    void showsKeywords()
    {
        const QString text = run(u"keywords KTPageAlignment"_s).output;
        QVERIFY(text.startsWith(u"KTPageAlignment  alignment of page\n"_s));
        QVERIFY(text.contains(u"  fullpage  0x8    auf dieser Seite\n"_s));
        QVERIFY(text.endsWith(u"An unknown word and an empty text become 'left'.\n"_s));
        const QJsonValue paper = json(u"keywords --json"_s)[6];
        QCOMPARE(paper[u"class"_s].toString(), u"KTPaperType"_s);
        QCOMPARE(paper[u"unknownWord"_s][u"written"_s].toString(), u"indigo"_s);
    }

    void refuses_data()
    {
        const KTTest::Rows<QString, QByteArray, int, QString> row;
        const QByteArray one = article("><forms><form key='a\xe2\x80\xae' value='red'/></forms>");
        row("", "", 64, "a command is missing");
        row("shw", "", 64, "did you mean 'show'?");
        row("show", "", 64, "'show' needs one file");
        row("show - --jsn", "", 64, "jsn");
        row("order -", "", 64, "'order' needs --article");
        row("show - --article 2147483648", "", 64, "is no number for --article");
        row("order - --article 1 --choose a", "", 64, "'a' is not KEY=VALUE");
        row("show missing.xml", "", 2, "missing.xml: error: No such file or directory");
        row("show .", "", 2, ".: error: ");
        row("broken behind the article", "show - --article 4", one + "<", 2, "-:2:104: error: ");
        row("order - --article 2", one, 1, "-: there is no article 2");
        row("order SAMPLE --article 7301 --choose alcolr=red", "", 1,
            "has no option 'alcolr'; offered: alcolor, coverphoto, flyleafcolor, giftboxcolor;boxstyle; "
            "did you mean 'alcolor'?");
        row("order SAMPLE --article 7301 --choose alcolor=reed", "", 1,
            "does not offer 'reed' for 'alcolor'; offered: black, red, sand; did you mean 'red'?");
        row("keywords KTPageAligment", "", 64, "did you mean 'KTPageAlignment'?");
        row("keywords KTDlpType KTDlpType", "", 64, "'keywords' takes one class");
        row("keywords --format csv", "", 64, "there are text, json and markdown");
        row("preview SAMPLE --article 7301 --pages 27 -o x.svg", "", 1,
            "the nearest valid page counts: 26 and 28");
        row("preview SAMPLE --article 9024 -o x.svg", "", 1, "has no page sizes");
        row("control characters", "order - --article 4 --choose b=c", one, 1, "offered: a\\u202e");
        row("check", "", 64, "'check' needs a file");
        row("check - --ignore=unknown-colour", "", 64, "did you mean 'unknown-color'?");
        row("check - --format=xml", "", 64, "possible: text, json, sarif");
        row("check - --fail-on=all", "", 64, "error, warning, hint, never");
        row("check --files-from=missing.txt", "", 2, "missing.txt: error: ");
    }
    void refuses()
    {
        const auto [arguments, input, exitCode, message] = KTTest::row<QString, QByteArray, int, QString>();
        const Outcome outcome = run(arguments, input);
        QCOMPARE(outcome.exitCode, exitCode);
        QVERIFY2(outcome.errors.contains(message), qPrintable(outcome.errors));
        QCOMPARE(outcome.errors.count(u'\n'), 1);
        QCOMPARE(outcome.output, QString());
    }

    void checks_data()
    {
        const KTTest::Rows<QString, QByteArray, int, QString, QString> row;
        const QByteArray hint = article("price_class='X'>");
        const QByteArray warning = article("x='\xe2\x80\xae' paper='y\xe2\x80\xae'>");
        row("SAMPLE", "", 0, "", "SAMPLE: nothing found\ntotal: nothing found\n");
        row("--quiet SAMPLE", "", 0, "", "");
        row("warnings", "-", warning, 1, "-:2:43: warning: 'y\\u202e' is no keyword of paper; ",
            "-: 2 warnings\ntotal: 2 warnings\n");
        row("hint", "-", hint, 0, "[unknown-price-class]\n", "-: 1 hint\ntotal: 1 hint\n");
        row("- --fail-on=hint --quiet", hint, 1, "hint: ", "");
        row("- --fail-on=error --quiet", warning, 0, "warning: ", "");
        row("- --fail-on=never --quiet", article("pages='0'>"), 0, "error: ", "");
        row("- --pedantic --quiet", hint, 1, "warning: ", "");
        row("- --pedantic --fail-on=error --quiet", warning, 1, "error: ", "");
        row("- --ignore=unknown-price-class --fail-on=hint", hint, 0, "",
            "-: nothing found\ntotal: nothing found\n");
        row("- --error=unknown-price-class --fail-on=error --quiet", hint, 1, "error: ", "");
        row("- --max-findings=1", warning, 1, "[unknown-attribute]\n",
            "-: 2 warnings\ntotal: 2 warnings, 1 of them not shown\n");
        row("- --color=always --quiet", hint, 0, "\033[1;36mhint:\033[0m '", "");
        row("broken behind a finding", "-", hint + "<", 2, "[unknown-price-class]\n-:2:",
            "-: 1 error, 1 hint\ntotal: 1 error, 1 hint; 1 of 1 files unreadable\n");
        row("missing.xml . SAMPLE", "", 2, "missing.xml:1:1: error: No such file or directory; ",
            "missing.xml: 1 error\n.: 1 error\nSAMPLE: nothing found\n"
            "total: 2 errors; 2 of 3 files unreadable\n");
        row("--ignore=unreadable-file missing.xml --quiet", "", 2, "", "");
        row("--files-from=-", "missing.xml\r\n\n" KT_SAMPLE_CATALOGUE, 2, "missing.xml:1:1:",
            "missing.xml: 1 error\nSAMPLE: nothing found\ntotal: 1 error; 1 of 2 files unreadable\n");
        row("--explain no-page-step", "", 0, "no-page-step (error): ", "");
    }
    void checks()
    {
        const auto [arguments, input, exitCode, output, errors]
            = KTTest::row<QString, QByteArray, int, QString, QString>();
        const Outcome outcome = run(u"check "_s + arguments, input);
        QVERIFY2(outcome.output.contains(output), qPrintable(outcome.output));
        QCOMPARE(outcome.output.isEmpty(), output.isEmpty());
        QCOMPARE(outcome.errors, errors);
        QCOMPARE(outcome.exitCode, exitCode);
    }

    void noticesUnwritableOutput()
    {
        const Outcome outcome = run(u"check missing.xml"_s, QByteArray(), u"/dev/full"_s);
        QCOMPARE(outcome.exitCode, 2);
        QVERIFY(outcome.errors.endsWith(u"the output cannot be written\n"_s));
    }

    void writesDocuments()
    {
        const QByteArray input
            = article("price_class='X' pages='0'><forms><form key='\xe2\x80\xae'/></forms>");
        const QJsonDocument document = json(u"check - --format=json"_s, input);
        QCOMPARE(document[u"findings"_s].toArray().size(), 3);
        QCOMPARE(document[u"total"_s][u"errors"_s].toInt(), 2);
        const QJsonValue finding = document[u"findings"_s][0];
        QCOMPARE(finding[u"article"_s], QJsonValue(4));
        QCOMPARE(finding[u"attribute"_s], QJsonValue(u"price_class"_s));
        QCOMPARE(finding[u"line"_s], QJsonValue(2));

        const QJsonDocument sarif = json(u"check - odd%2.xml --format=sarif"_s, input);
        QCOMPARE(sarif[u"version"_s].toString(), u"2.1.0"_s);
        const QJsonValue run = sarif[u"runs"_s][0];
        QCOMPARE(run[u"tool"_s][u"driver"_s][u"name"_s].toString(), u"ktcatalogue"_s);
        QCOMPARE(run[u"invocations"_s][0][u"executionSuccessful"_s], QJsonValue(false));
        const QJsonArray rules = run[u"tool"_s][u"driver"_s][u"rules"_s].toArray();
        QCOMPARE(rules.size(), KTCheckRules::COUNT);
        const QStringList levels {u"error"_s, u"warning"_s, u"note"_s};
        for (const QJsonValue &rule : rules) {
            QVERIFY(!rule[u"shortDescription"_s][u"text"_s].toString().isEmpty());
            QVERIFY(levels.contains(rule[u"defaultConfiguration"_s][u"level"_s].toString()));
        }
        QStringList results;
        for (const QJsonValue &result : run[u"results"_s].toArray()) {
            QCOMPARE(rules.at(result[u"ruleIndex"_s].toInt(-1))[u"id"_s], result[u"ruleId"_s]);
            QVERIFY(!result[u"message"_s][u"text"_s].toString().isEmpty());
            const QJsonValue place = result[u"locations"_s][0][u"physicalLocation"_s];
            const QJsonValue region = place[u"region"_s];
            results.append(KTTest::text(place[u"artifactLocation"_s][u"uri"_s].toString(),
                                        region[u"startLine"_s].toInt(), region[u"startColumn"_s].toInt(),
                                        result[u"level"_s].toString()));
        }
        QCOMPARE(results.join(u' '), u"-|2|37|note -|2|53|error -|2|70|error odd%252.xml|1|1|error"_s);
    }

    void helps()
    {
        for (const char *command : {"", "show ", "check ", "order ", "preview ", "keywords "}) {
            const Outcome outcome = run(QString::fromLatin1(command) + u"--help"_s);
            QCOMPARE(outcome.exitCode, 0);
            QVERIFY(outcome.output.contains(u"Example:\n  ktcatalogue "_s));
        }
        QVERIFY(run(u"--version"_s).output.contains(QString::fromLatin1(qVersion())));
    }

    void makesTextVisible()
    {
        const auto visible = [](const QString &text) {
            // The escaped document says the same.
            const QJsonObject object {
                {u"text"_s, text}
            };
            const QString json
                = KTTerminalText::visibleJson(QString::fromUtf8(QJsonDocument(object).toJson()));
            const bool isSame = QJsonDocument::fromJson(json.toUtf8()).object() == object;
            const bool isVisible = !json.contains(QChar(0x202e)) && !json.contains(QChar(0x9b));
            return KTTest::text(KTTerminalText::visible(text), isSame, isVisible);
        };
        KTTest::check(visible,
                      {"Weiß \u20ac -> Weiß \u20ac|+|+", "\x1b[2J\n -> \\u001b[2J\\u000a|+|+",
                       "\u009b -> \\u009b|+|+", "a\u202eb\u2066 -> a\\u202eb\\u2066|+|+",
                       "\u2028 -> \\u2028|+|+",
                       u"\U0001f600"_s + QChar(0xd800) + u" -> \U0001f600\\ud800|+|+"_s});
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
