#include <KTNearestWord.h>
#include <KTTerminalText.h>

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
    list.replaceInStrings(QStringLiteral("SAMPLE"), QStringLiteral(KT_SAMPLE_CATALOGUE));
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
        QTest::newRow("preselected") << QString()
                                     << QStringLiteral("alcolor:black;coverphoto:yes;flyleafcolor:white")
                                     << QStringLiteral("alcolor:black,coverphoto:yes,flyleafcolor:white");
        QTest::newRow("last choice wins") << QStringLiteral("--choose alcolor=sand --choose alcolor=red")
                                          << QStringLiteral("alcolor:red;coverphoto:yes;flyleafcolor:white")
                                          << QStringLiteral("alcolor:red,coverphoto:yes,flyleafcolor:white");
        QTest::newRow("compound")
            << QStringLiteral("--choose giftboxcolor;boxstyle=white;ribbon")
            << QStringLiteral(
                   "alcolor:black;coverphoto:yes;flyleafcolor:white;giftboxcolor:white;boxstyle:ribbon")
            << QStringLiteral(
                   "alcolor:black,coverphoto:yes,flyleafcolor:white,giftboxcolor;boxstyle:white;ribbon");
    }
    void writesOrderText()
    {
        QFETCH(QString, choices);
        QFETCH(QString, orderTxt);
        QFETCH(QString, mcf);
        const Outcome text = run(QStringLiteral("order SAMPLE --article 7301 ") + choices);
        QCOMPARE(text.errors, QString());
        QCOMPARE(text.exitCode, 0);
        QVERIFY(text.output.contains(QStringLiteral("order text  ") + orderTxt + QLatin1Char('\n')));
        QVERIFY(text.output.contains(QStringLiteral("MCF         ") + mcf + QLatin1Char('\n')));
        const QJsonObject json
            = QJsonDocument::fromJson(
                  run(QStringLiteral("order SAMPLE --json --article 7301 ") + choices).output.toUtf8())
                  .object();
        QCOMPARE(json.value(QStringLiteral("orderText")).toString(), orderTxt);
        QCOMPARE(json.value(QStringLiteral("mcf")).toString(), mcf);
        QCOMPARE(json.value(QStringLiteral("production")).toObject().size(),
                 orderTxt.count(QLatin1Char(':')));
    }

    void showsArticles()
    {
        const Outcome text = run(QStringLiteral("show SAMPLE --article 8840"));
        QCOMPARE(text.exitCode, 0);
        QVERIFY(text.output.startsWith(QStringLiteral("article 8840  Erinnerungsbox mit 30 Fotos\n")));
        QCOMPARE(text.output.count(QStringLiteral("box style")), 4);
        const QJsonArray all
            = QJsonDocument::fromJson(run(QStringLiteral("show SAMPLE --json")).output.toUtf8()).array();
        QVERIFY(all.size() >= 10);
        const QJsonObject first = all.first().toObject();
        QCOMPARE(first.value(QStringLiteral("id")).toInt(), 7301);
        QCOMPARE(first.value(QStringLiteral("options")).toArray().size(), 9);
        QCOMPARE(first.value(QStringLiteral("defaultChoice"))
                     .toObject()
                     .value(QStringLiteral("coverphoto"))
                     .toString(),
                 QStringLiteral("yes"));
        QCOMPARE(run(QStringLiteral("show - --json"), "<catalogue/>").output, QStringLiteral("[]\n"));
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
        QTest::newRow("no command") << QString() << QByteArray() << 64
                                    << QStringLiteral("a command is missing");
        QTest::newRow("unknown command")
            << QStringLiteral("shw") << QByteArray() << 64 << QStringLiteral("did you mean 'show'?");
        QTest::newRow("no file") << QStringLiteral("show") << QByteArray() << 64
                                 << QStringLiteral("'show' needs one file");
        QTest::newRow("unknown option")
            << QStringLiteral("show - --jsn") << QByteArray() << 64 << QStringLiteral("jsn");
        QTest::newRow("no article number")
            << QStringLiteral("order -") << QByteArray() << 64 << QStringLiteral("'order' needs --article");
        QTest::newRow("number beyond int") << QStringLiteral("show - --article 2147483648") << QByteArray()
                                           << 64 << QStringLiteral("is no number for --article");
        QTest::newRow("choice without value") << QStringLiteral("order - --article 1 --choose a")
                                              << QByteArray() << 64 << QStringLiteral("'a' is not KEY=VALUE");
        QTest::newRow("missing file") << QStringLiteral("show missing.xml") << QByteArray() << 2
                                      << QStringLiteral("missing.xml: error: No such file or directory");
        QTest::newRow("directory") << QStringLiteral("show .") << QByteArray() << 2
                                   << QStringLiteral(".: error: ");
        QTest::newRow("broken behind the article")
            << QStringLiteral("show - --article 1") << QByteArray(one + "<") << 2
            << QStringLiteral("-:1:94: error: ");
        QTest::newRow("unknown article") << QStringLiteral("order - --article 2") << one << 1
                                         << QStringLiteral("-: there is no article 2");
        QTest::newRow("unknown key") << QStringLiteral("order SAMPLE --article 7301 --choose alcolr=red")
                                     << QByteArray() << 1
                                     << QStringLiteral(
                                            "has no option 'alcolr'; offered: alcolor, coverphoto, "
                                            "flyleafcolor, giftboxcolor;boxstyle; did you mean 'alcolor'?");
        QTest::newRow("unknown value")
            << QStringLiteral("order SAMPLE --article 7301 --choose alcolor=reed") << QByteArray() << 1
            << QStringLiteral(
                   "does not offer 'reed' for 'alcolor'; offered: black, red, sand; did you mean 'red'?");
        QTest::newRow("control characters") << QStringLiteral("order - --article 1 --choose b=c") << one << 1
                                            << QStringLiteral("offered: a\\u202e");
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
        for (const char *command : {"", "show ", "order "}) {
            const Outcome outcome = run(QString::fromLatin1(command) + QStringLiteral("--help"));
            QCOMPARE(outcome.exitCode, 0);
            QVERIFY(outcome.output.contains(QStringLiteral("Example:\n  ktcatalogue ")));
        }
        QVERIFY(run(QStringLiteral("--version")).output.contains(QString::fromLatin1(qVersion())));
    }

    void makesTextVisible_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("visible");
        QTest::newRow("plain") << QStringLiteral("Weiß \u20ac") << QStringLiteral("Weiß \u20ac");
        QTest::newRow("escape") << QStringLiteral("\x1b[2J\n") << QStringLiteral("\\u001b[2J\\u000a");
        QTest::newRow("C1 control") << QStringLiteral("\u009b") << QStringLiteral("\\u009b");
        QTest::newRow("right-to-left override")
            << QStringLiteral("a\u202eb\u2066") << QStringLiteral("a\\u202eb\\u2066");
        QTest::newRow("line separator") << QStringLiteral("\u2028") << QStringLiteral("\\u2028");
        QTest::newRow("pair and lone surrogate")
            << QString(QStringLiteral("\U0001f600") + QChar(0xd800)) << QStringLiteral("\U0001f600\\ud800");
    }
    void makesTextVisible()
    {
        QFETCH(QString, text);
        QTEST(KTTerminalText::visible(text), "visible");
        // The escaped document says the same and carries the text.
        const QJsonObject object {
            {QStringLiteral("text"), text}
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
        QTest::newRow("dropped letter") << QStringLiteral("alcolr") << QStringLiteral("alcolor");
        QTest::newRow("other case") << QStringLiteral("BOXSTYLE") << QStringLiteral("boxstyle");
        QTest::newRow("two edits") << QStringLiteral("boxtyp") << QStringLiteral("boxtype");
        QTest::newRow("exactly two") << QStringLiteral("xlcolox") << QStringLiteral("alcolor");
        QTest::newRow("three edits") << QStringLiteral("xlxolox") << QString();
        QTest::newRow("empty") << QString() << QString();
    }
    void findsNearestWord()
    {
        QFETCH(QString, word);
        QTEST(KTNearestWord::find(
                  word, {QStringLiteral("alcolor"), QStringLiteral("boxstyle"), QStringLiteral("boxtype")}),
              "nearest");
    }
};

QTEST_GUILESS_MAIN(tst_ktcatalogue)
#include "tst_ktcatalogue.moc"
