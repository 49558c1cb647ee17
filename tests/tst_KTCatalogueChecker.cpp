#include <KTCatalogueChecker.h>

#include "KTTestSupport.h"

#include <QBuffer>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryFile>
#include <QtTest>

namespace {

/** A rule with a catalogue that it finds fault with, and a similar one that is fine. */
struct Sample
{
    const char *rule;
    /** The attributes of an article and, after a ">", its children; a whole file when it begins with "<". */
    const char *bad;
    const char *place;
    /** A part of the message. */
    const char *words;
    const char *good;
};

/** A function, because rows of texts that take several lines cannot be lined up. */
constexpr Sample sample(const char *rule, const char *bad, const char *place, const char *words,
                        const char *good)
{
    return {rule, bad, place, words, good};
}

// Articles stand in line 2, their attributes from column 37 on.
constexpr Sample SAMPLES[] = {
    sample("not-well-formed", "<catalogue>\n<article", "2:9",
           "Premature end of document; the application refuses the file", "<catalogue/>"),
    sample("not-well-formed", "<html/>", "1:1", "the root element is 'html'",
           "<?xml version='1.0'?><catalogue/>"),
    sample("limit-exceeded", "<!DOCTYPE catalogue><catalogue/>", "1:1", "no document type",
           "<catalogue><!-- --></catalogue>"),
    sample("unknown-element", ">\n <formes/>", "3:2", "did you mean 'forms'?", ">\n <forms/>"),
    sample("unknown-element", "><form key='a'/>", "2:38", "it belongs into 'forms'",
           "><forms><form key='a' value='b'/></forms>"),
    sample("unknown-element", "<catalogue><articles><x/></articles></catalogue>", "1:12",
           "did you mean 'article'?", "<catalogue><?a <x>?><!-- <x/> --></catalogue>"),
    sample("unknown-attribute", "maxpages='7'", "2:37", "did you mean 'max_pages'?", "max_pages='1'"),
    sample("unknown-attribute", "><forms\nkey='a'/>", "3:1", "nothing reads 'key' of 'forms'",
           " xml:lang='de'"),
    sample("unknown-attribute", "<catalogue version='1'/>", "1:12", "", "<catalogue xmlns:x='y'/>"),
    sample("repeated-element", "><forms/><forms><x/></forms>", "2:46", "skips this one",
           "><page/><page/><forms/>"),
    sample("repeated-element", "><composition><spine/><spine/></composition>", "2:59", "'spine'",
           "><composition><spine/></composition><barcodes/>"),
    sample("ignored-attribute", "article_class='picture_box' pieces='2'", "2:65", "1 to 30, step 1",
           "pieces='2'"),
    sample("ignored-attribute", "<catalogue><article id='6322' productname='CAL51' pages='3'/></catalogue>",
           "1:51", "always has 25 pages", "<catalogue><article id='6322' productname='CAL51'/></catalogue>"),
    sample("no-article-id", "<catalogue><article id='0' productname='A'/></catalogue>", "1:21",
           "no order can name", "<catalogue><article id='1' art_id='-1' productname='A'/></catalogue>"),
    sample("duplicate-id", "/><article\nid='4' productname='A'", "2:39", "line 2 has the number 4",
           "/><article id='5' productname='A'"),
    sample("duplicate-id", "/><article id='20' productname='A'/><article id='4' productname='A'", "2:73",
           "line 2", "/><article id='20' productname='A'"),
    sample("conflicting-ids", "art_id='5'", "2:10", "the application takes 5", "art_id='4'"),
    sample("no-product-name", "<catalogue><article id='1'/></catalogue>", "1:12", "takes 'ALB9'",
           "<catalogue><article id='1' productname=''/></catalogue>"),
    sample("unknown-keyword", "cover_type=' hardcovr, Booklet'", "2:37", "did you mean 'HARDCOVER'?",
           "cover_type=' hardcover, Booklet'"),
    sample("unknown-keyword", "><page alignment='tip'/>", "2:44", "the default, 'left'",
           "><page type='fullcover' alignment='LEFT,right'/>"),
    sample("unknown-keyword", "spot_colors='gold,,silver'", "2:37", "an empty entry", "spot_colors=''"),
    sample("unknown-price-class", "price_class='ABL9'", "2:37", "'ABL' is no known family",
           "price_class='FOP999'"),
    sample("unknown-price-class", "price_class='97'", "2:37", "bills '97'", "price_class='0ABL'"),
    sample("shipping-group", "shipping_group='2b'", "2:37", "no shipping group (-1)", "shipping_group='-1'"),
    sample("unreadable-number", "page_step='2.0'", "2:37",
           "no whole number; the application takes the default: 1 to 1, step 0", "page_step=' 2 '"),
    sample("unreadable-number", "pages='2147483648'", "2:37", "is out of range", "pages='2147483647'"),
    sample("unreadable-number", "><page width='NaN'/>", "2:44", "is not finite", "><page width='-1e3'/>"),
    sample("unreadable-number", "><page width='1e999'/>", "2:44", "is out of range",
           "><page width='1e300'/>"),
    sample("unreadable-number", "><barcodes><barcode width='1,5'/></barcodes>", "2:57",
           "takes 1; did you mean '1.5'?", "><barcodes><barcode width='1.5'/></barcodes>"),
    sample("unreadable-number", "><page height='12345678.9.1'/>", "2:44", "is no number",
           "><page height='.5'/>"),
    sample("unreadable-boolean", "><forms><form key='a' value='b' preselected='yes'/></forms>", "2:69",
           "takes false", "><forms><form key='a' value='b' preselected='TRUE'/></forms>"),
    sample("unknown-unit", "><page units='mmm' width='2'/>", "2:44", "did you mean 'mm'?",
           "><page units='Inch' width='2'/>"),
    sample("unknown-unit", "><composition units='mm,cm'/>", "2:51", "layout units of 0.1 mm",
           "><barcodes units=''/>"),
    sample(
        "unknown-color", "><forms><form key='a' value='b' color='blakc'/></forms>", "2:69",
        "did you mean 'black'?",
        "><forms><form key='a' value='b' color='#80123456'/><form key='a' value='c' color='Black'/></forms>"),
    sample("page-count-range", "pages='0'", "2:37", "not valid; they begin at 1", "pages='1'"),
    sample("page-count-range", "pages='2000000000' pieces='2'", "2:56", "so the application cuts it off",
           "pages='1000000000' pieces='2'"),
    sample("pages-inverted", "pages='40' max_pages='26' page_step='2'", "2:48",
           "a wish for 26 pages becomes 40", "pages='26' max_pages='40' page_step='2'"),
    sample("negative-page-step", "max_pages='9' page_step='-2'", "2:51", "1 to 9, step -2",
           "max_pages='9' page_step='2'"),
    sample("no-page-step", "max_pages='9'", "2:37", "a wish for 9 pages becomes 1", "max_pages='1'"),
    sample("uneven-page-step", "pages='26' max_pages='31' page_step='2'", "2:63",
           "the last one offered is 30; a wish for 31 pages becomes 32",
           "pages='26' max_pages='30' page_step='2'"),
    sample("spine-without-step", "><composition><spine packages_per_block='2'/></composition>", "2:58",
           "never grows",
           "max_pages='3' page_step='2'><composition><spine packages_per_block='2'/></composition>"),
    sample("spine-without-step",
           "article_class='picture_box'><composition><spine packages_per_block='2'/></composition>", "2:85",
           "never grows", "><composition><spine packages_per_block='0'/></composition>"),
    sample("incomplete-option", "><forms><form key='a' value=''/></forms>", "2:45",
           "no value; the application skips", "><forms><form key='a' value=' '/></forms>"),
    sample("compound-parts", "><forms><form key='a;b' value='c'/></forms>", "2:61", "leave the option out",
           "><forms><form key='a;b' value='c;d'/></forms>"),
    sample("reserved-character", "><forms><form key='a' value='b+c'/></forms>", "2:59",
           "writes the option as 'a:b+c' in MCF, which reads back as nothing",
           "><forms><form key='a' value='b&amp;-c'/></forms>"),
    sample("reserved-character", "><forms><form key='%2' value='b'/></forms>", "2:51",
           "reads back as 'b:", "><forms><form key='100%' value='b'/></forms>"),
    sample("duplicate-option", ">\n<forms><form key='a' value='b'/><form key='a' value='b'/></forms>", "3:33",
           "in line 3", ">\n<forms><form key='a' value='b'/><form key='a' value='B'/></forms>"),
    sample(
        "several-preselected",
        "><forms><form key='a' value='b' preselected='1'/><form key='a' value='c' preselected='1'/></forms>",
        "2:110", "the last one, 'c'",
        "><forms><form key='a' value='b' preselected='1'/><form key='b' value='c' preselected='1'/></forms>"),
    sample("barcode-dropped", "><barcodes><barcode height='0.09'/></barcodes>", "2:57", "skips it",
           "><barcodes><barcode height='0.1'/></barcodes>"),
    sample("barcode-dropped", "><barcodes><barcode image=''/></barcodes>", "2:57", "empty image name",
           "><barcodes units='layoutunit'><barcode/></barcodes>"),
    sample("barcode-same-place", "><barcodes><barcode/><barcode pageNr='2' width='1.0'/></barcodes>", "2:58",
           "in line 2", "><barcodes><barcode/><barcode position_x='2'/></barcodes>"),
    sample("barcode-image", "><barcodes><barcode image='../picshelf/dummy-barcode.png'/></barcodes>", "2:57",
           "no barcode", "><barcodes><barcode image='dummy-barcode.png'/></barcodes>"),
};

QByteArray catalogue(const QByteArray &text)
{
    if (text.startsWith('<'))
        return text;
    const int end = text.indexOf('>');
    const bool isClosed = text.startsWith('/');
    if (end < 0 || isClosed)
        return "<catalogue>\n<article id='4' productname='ALB42' " + text + "/>\n</catalogue>";
    return "<catalogue>\n<article id='4' productname='ALB42' " + text + "</article>\n</catalogue>";
}

/** The findings as "line:column rule: message". */
QStringList findings(QByteArray file)
{
    QStringList lines;
    QBuffer buffer(&file);
    buffer.open(QIODevice::ReadOnly);
    KTCatalogueChecker checker([&lines](const KTFinding &finding) {
        lines.append(QStringLiteral("%1:%2 %3: %4")
                         .arg(QString::number(finding.position.line),
                              QString::number(finding.position.column), KTCheckRules::name(finding.rule),
                              finding.message));
    });
    checker.check(u"-"_s, &buffer);
    return lines;
}

struct Outcome
{
    int exitCode;
    QByteArray output;
    QString errors;
};

Outcome run(const QStringList &arguments, const QByteArray &input = QByteArray())
{
    QProcess process;
    process.start(QStringLiteral(KT_PROGRAM), QStringList(u"check"_s) + arguments);
    process.write(input);
    process.closeWriteChannel();
    process.waitForFinished();
    return {process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
            process.readAllStandardOutput(), QString::fromUtf8(process.readAllStandardError())};
}

QByteArray contentOf(const char *name)
{
    QFile file(QString::fromUtf8(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

class tst_KTCatalogueChecker : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void findsWhatIsWrong_data()
    {
        QTest::addColumn<int>("index");
        int index = 0;
        for (const Sample &sample : SAMPLES) {
            QTest::addRow("%s %d", sample.rule, index) << index;
            ++index;
        }
    }
    void findsWhatIsWrong()
    {
        QFETCH(int, index);
        const Sample &sample = SAMPLES[index];
        QCOMPARE(findings(catalogue(sample.good)), QStringList());
        const QStringList found = findings(catalogue(sample.bad));
        QCOMPARE(found.size(), 1);
        QVERIFY2(found.constLast().contains(QString::fromUtf8(sample.words)), qPrintable(found.constLast()));
        QCOMPARE(found.constLast().section(QLatin1Char(' '), 1, 1), QString::fromLatin1(sample.rule) + u':');
        QCOMPARE(found.constLast().section(QLatin1Char(' '), 0, 0), QString::fromLatin1(sample.place));
    }

    void hasSamplesAndDocumentationForEachRule()
    {
        QStringList sampled {u"unreadable-file"_s};
        for (const Sample &sample : SAMPLES)
            sampled.append(QString::fromLatin1(sample.rule));
        sampled.removeDuplicates();
        QStringList documented;
        for (const QByteArray &line : contentOf(KT_FORMAT_DOCUMENT).split('\n')) {
            if (line.endsWith("| error |") || line.endsWith("| warning |") || line.endsWith("| hint |"))
                documented.append(QString::fromUtf8(line));
        }
        QCOMPARE(documented.size(), KTCheckRules::COUNT);
        for (int i = 0; i < KTCheckRules::COUNT; ++i) {
            const KTRuleRow &row = KTCheckRules::at(i);
            QCOMPARE(static_cast<int>(row.rule), i);
            QCOMPARE(KTCheckRules::find(QString::fromLatin1(row.name)), &row);
            QCOMPARE(sampled.value(i), QString::fromLatin1(row.name));
            QString summary = QString::fromLatin1(row.summary).replace(QLatin1Char('\''), QLatin1Char('`'));
            summary[0] = summary.at(0).toUpper();
            QCOMPARE(documented.at(i),
                     QStringLiteral("| `%1` | %2 | %3 |")
                         .arg(QString::fromLatin1(row.name), summary, KTCheckRules::name(row.severity)));
        }
    }

    void knowsTheDocumentedAttributes()
    {
        const QRegularExpression name(u"`(\\w+)`( \\(of `(\\w+)`\\))?"_s);
        QStringList documented;
        QString element;
        for (const QByteArray &line : contentOf(KT_FORMAT_DOCUMENT).split('\n')) {
            if (line.startsWith("## "))
                element = QString::fromUtf8(line).section(QLatin1Char('`'), -2, -2);
            if (!line.startsWith("| `") || line.count('|') != 4 || element.isEmpty())
                continue;
            auto match = name.globalMatch(QString::fromUtf8(line).section(QLatin1Char('|'), 1, 1));
            while (match.hasNext()) {
                const QRegularExpressionMatch one = match.next();
                documented.append((one.captured(3).isEmpty() ? element : one.captured(3)) + u'@'
                                  + one.captured(1));
            }
        }
        QStringList known;
        for (const KTAttributeRow &row : KTCatalogueFormat::instance().attributes())
            known.append(KTCatalogueFormat::instance().elementName(row.element) + u'@'
                         + QString::fromLatin1(row.name));
        documented.sort();
        known.sort();
        QCOMPARE(documented, known);
    }

    void findsPlantedMistakes()
    {
        const QList<QList<QByteArray>> mistakes {
            {"art_id=\"7302\"",                              "art_id=\"7301\"",                             "duplicate-id"       },
            {"cover_type=\"HARDCOVER\"",                     "cover_type=\"HARDCOVR\"",                     "unknown-keyword"    },
            {"max_pages=\"154\"",                            "max_pages=\"155\"",                           "uneven-page-step"   },
            {"page_step=\"4\"",                              "page_step=\"0\"",                             "no-page-step"       },
            {"max_pages=\"122\"",                            "max_pages=\"22\"",                            "pages-inverted"     },
            {"base_width=\"0.9\"",                           "base_width=\"0,9\"",                          "unreadable-number"  },
            {"composition units=\"cm\"",                     "composition units=\"ccm\"",                   "unknown-unit"       },
            {"color=\"#9b111e\"",                            "color=\"#9b111\"",                            "unknown-color"      },
            {"value=\"sand\"",                               "value=\"red\"",                               "duplicate-option"   },
            {"value=\"no\"",                                 "value=\"no\" preselected=\"1\"",              "several-preselected"},
            {"value=\"anthracite\"",                         "value=\"\"",                                  "incomplete-option"  },
            {"value=\"black;magnet\"",                       "value=\"black\"",                             "compound-parts"     },
            {"value=\"7\"",                                  "value=\"7,8\"",                               "reserved-character" },
            {"position_x=\"160\"",                           "position_x=\"12\"",                           "barcode-same-place" },
            {"position_y=\"20\" width=\"3\"",                "position_y=\"20\" width=\"0\"",               "barcode-dropped"    },
            {"position_x=\"36\"",                            "image=\"../x.png\"",                          "barcode-image"      },
            {"price_class=\"CAL12\"",                        "price_class=\"CLA12\"",                       "unknown-price-class"},
            {"shipping_group=\"22\"",                        "shipping_group=\"22b\"",                      "shipping-group"     },
            {"article id=\"9024\"",                          "article id=\"-9024\"",                        "no-article-id"      },
            {"photo_paper=\"matt\" productname=\"FOT1318\"", "photopaper=\"matt\" productname=\"FOT1318\"",
             "unknown-attribute"                                                                                                 },
        };
        QByteArray file = contentOf(KT_SAMPLE_CATALOGUE);
        QStringList expected;
        for (const QList<QByteArray> &mistake : mistakes) {
            QCOMPARE(file.count(mistake.at(0)), 1);
            const int line = file.left(file.indexOf(mistake.at(0))).count('\n') + 1;
            expected.append(QStringLiteral("%1 %2").arg(line).arg(QString::fromLatin1(mistake.at(2))));
            file.replace(mistake.at(0), mistake.at(1));
        }
        QStringList found;
        for (const QString &line : findings(file))
            found.append(line.section(QLatin1Char(':'), 0, 0) + u' '
                         + line.section(QRegularExpression(u"[ :]"_s), 2, 2));
        expected.sort();
        found.sort();
        QCOMPARE(found, expected);
    }

    void exits_data()
    {
        QTest::addColumn<QString>("arguments");
        QTest::addColumn<QByteArray>("input");
        QTest::addColumn<int>("exitCode");
        QTest::addColumn<QByteArray>("output");
        QTest::addColumn<QString>("errors");
        const QByteArray hint = catalogue("price_class='X'");
        const QByteArray warning = catalogue("x='\xe2\x80\xae' paper='y\xe2\x80\xae'");
        const QByteArray none;
        const QString sample = QStringLiteral(KT_SAMPLE_CATALOGUE);
        QTest::newRow("sample is clean")
            << sample << none << 0 << none << sample + u": nothing found\ntotal: nothing found\n"_s;
        QTest::newRow("quiet") << u"--quiet "_s + sample << none << 0 << none << QString();
        QTest::newRow("warnings") << u"-"_s << warning << 1
                                  << QByteArray("-:2:43: warning: 'y\\u202e' is no keyword of paper; ")
                                  << u"-: 2 warnings\ntotal: 2 warnings\n"_s;
        QTest::newRow("hint") << u"-"_s << hint << 0 << QByteArray("[unknown-price-class]\n") << u"1 hint"_s;
        QTest::newRow("threshold hint")
            << u"- --fail-on=hint"_s << hint << 1 << QByteArray("hint: ") << QString();
        QTest::newRow("threshold error")
            << u"- --fail-on=error"_s << warning << 0 << QByteArray("warning: ") << QString();
        QTest::newRow("threshold never")
            << u"- --fail-on=never"_s << catalogue("pages='0'") << 0 << QByteArray("error: ") << QString();
        QTest::newRow("pedantic") << u"- --pedantic"_s << hint << 1 << QByteArray("warning: ") << QString();
        QTest::newRow("ignored") << u"- --ignore=unknown-price-class --fail-on=hint"_s << hint << 0 << none
                                 << u"nothing found"_s;
        QTest::newRow("raised") << u"- --error=unknown-price-class --fail-on=error"_s << hint << 1
                                << QByteArray("error: ") << QString();
        QTest::newRow("limited") << u"- --max-findings=1"_s << warning << 1
                                 << QByteArray("[unknown-attribute]\n")
                                 << u"total: 2 warnings, 1 of them not shown\n"_s;
        QTest::newRow("coloured") << u"- --color=always"_s << hint << 0
                                  << QByteArray("\033[1;36mhint:\033[0m '") << QString();
        QTest::newRow("broken behind a finding")
            << u"-"_s << hint + "<" << 2 << QByteArray("[unknown-price-class]\n-:3:")
            << u"1 of 1 files unreadable"_s;
        QTest::newRow("goes on") << u"missing.xml . "_s + sample << none << 2
                                 << QByteArray("missing.xml:1:1: error: No such file or directory; ")
                                 << sample + u": nothing found\ntotal: 2 errors; 2 of 3 files unreadable\n"_s;
        QTest::newRow("broken and ignored")
            << u"--ignore=unreadable-file missing.xml"_s << none << 2 << none << QString();
        QTest::newRow("names from a list")
            << u"--files-from=-"_s << QByteArray("missing.xml\r\n\n") + KT_SAMPLE_CATALOGUE << 2
            << QByteArray("missing.xml:1:1:") << u"1 of 2 files"_s;
        QTest::newRow("missing list")
            << u"--files-from=missing.txt"_s << none << 2 << none << u"missing.txt: error: "_s;
        QTest::newRow("no file") << QString() << none << 64 << none << u"'check' needs a file"_s;
        QTest::newRow("no rule") << u"- --ignore=unknown-colour"_s << none << 64 << none
                                 << u"did you mean 'unknown-color'?"_s;
        QTest::newRow("no format") << u"- --format=xml"_s << none << 64 << none
                                   << u"possible: text, json, sarif"_s;
        QTest::newRow("no severity") << u"- --fail-on=all"_s << none << 64 << none
                                     << u"error, warning, hint, never"_s;
        QTest::newRow("list") << u"--list-rules"_s << none << 0
                              << QByteArray("\nuneven-page-step     warning  the range") << QString();
        QTest::newRow("explanation") << u"--explain no-page-step"_s << none << 0
                                     << QByteArray("no-page-step (error): ") << QString();
    }
    void exits()
    {
        QFETCH(QString, arguments);
        QFETCH(QByteArray, input);
        QFETCH(QByteArray, output);
        QFETCH(QString, errors);
        const Outcome outcome = run(arguments.split(QLatin1Char(' '), Qt::SkipEmptyParts), input);
        QVERIFY2(outcome.output.contains(output) && outcome.output.isEmpty() == output.isEmpty(),
                 outcome.output);
        QVERIFY2(outcome.errors.contains(errors), qPrintable(outcome.errors));
        QTEST(outcome.exitCode, "exitCode");
    }

    void noticesUnwritableOutput()
    {
        QProcess process;
        process.setStandardOutputFile(u"/dev/full"_s);
        process.start(QStringLiteral(KT_PROGRAM), {u"check"_s, u"missing.xml"_s});
        QVERIFY(process.waitForFinished());
        QCOMPARE(process.exitCode(), 2);
        QVERIFY(process.readAllStandardError().endsWith("the output cannot be written\n"));
    }

    void writesDocuments()
    {
        const QByteArray input
            = catalogue("price_class='X' pages='0'><forms><form key='\xe2\x80\xae'/></forms>");
        const QJsonObject json
            = QJsonDocument::fromJson(run({u"-"_s, u"--format=json"_s}, input).output).object();
        QCOMPARE(json.value(u"findings"_s).toArray().size(), 3);
        QCOMPARE(json.value(u"total"_s).toObject().value(u"errors"_s).toInt(), 2);
        const QJsonObject finding = json.value(u"findings"_s).toArray().first().toObject();
        QCOMPARE(finding.value(u"article"_s).toInt(), 4);
        QCOMPARE(finding.value(u"attribute"_s).toString(), u"price_class"_s);

        const Outcome outcome = run({u"-"_s, u"odd name%2.xml"_s, u"--format=sarif"_s, u"--quiet"_s}, input);
        QCOMPARE(outcome.exitCode, 2);
        const QJsonObject sarif = QJsonDocument::fromJson(outcome.output).object();
        QCOMPARE(sarif.value(u"version"_s).toString(), u"2.1.0"_s);
        QCOMPARE(sarif.value(u"runs"_s).toArray().size(), 1);
        const QJsonObject run = sarif.value(u"runs"_s).toArray().first().toObject();
        const QJsonObject driver = run.value(u"tool"_s).toObject().value(u"driver"_s).toObject();
        QCOMPARE(driver.value(u"name"_s).toString(), u"ktcatalogue"_s);
        QCOMPARE(run.value(u"invocations"_s).toArray().first().toObject().value(u"executionSuccessful"_s),
                 QJsonValue(false));
        const QJsonArray rules = driver.value(u"rules"_s).toArray();
        QCOMPARE(rules.size(), KTCheckRules::COUNT);
        const QStringList levels {u"error"_s, u"warning"_s, u"note"_s};
        QSet<QString> ids;
        for (const QJsonValue &rule : rules) {
            ids.insert(rule[u"id"_s].toString());
            QVERIFY(!rule[u"shortDescription"_s][u"text"_s].toString().isEmpty());
            QVERIFY(levels.contains(rule[u"defaultConfiguration"_s][u"level"_s].toString()));
        }
        QCOMPARE(ids.size(), rules.size());
        const QJsonArray results = run.value(u"results"_s).toArray();
        QCOMPARE(results.size(), 4);
        for (const QJsonValue &result : results) {
            QCOMPARE(rules.at(result[u"ruleIndex"_s].toInt(-1))[u"id"_s], result[u"ruleId"_s]);
            QVERIFY(levels.contains(result[u"level"_s].toString()));
            QVERIFY(!result[u"message"_s][u"text"_s].toString().isEmpty());
            const QJsonValue place = result[u"locations"_s][0][u"physicalLocation"_s];
            QVERIFY(place[u"region"_s][u"startLine"_s].toInt() > 0);
            QVERIFY(place[u"region"_s][u"startColumn"_s].toInt() > 0);
            QVERIFY(QStringList({u"-"_s, u"odd%20name%252.xml"_s})
                        .contains(place[u"artifactLocation"_s][u"uri"_s].toString()));
        }
    }

    void refusesHostileFiles_data()
    {
        QTest::addColumn<QByteArray>("file");
        const QByteArray begin = "<catalogue><article id='1'>";
        QByteArray attributes;
        for (int i = 0; i < 100000; ++i)
            attributes += " a" + QByteArray::number(i) + "='1'";
        const QByteArray options
            = QByteArray("<form key='a;' value='1;2' color='x' preselected='1'/>").repeated(2000);
        QTest::newRow("levels") << begin + QByteArray("<forms>").repeated(100000);
        QTest::newRow("attributes") << begin + "<form" + attributes;
        QTest::newRow("entities") << QByteArray("<!DOCTYPE catalogue [<!ENTITY a '") + QByteArray(4000, 'a')
                + "'>]><catalogue>" + QByteArray("&a;").repeated(50000);
        QTest::newRow("value") << begin + "<form key='" + QByteArray(10000000, 'a');
        QTest::newRow("longest values")
            << begin + QByteArray("<x y='" + QByteArray(65536, ',') + "'/>").repeated(50);
        QTest::newRow("longest keywords")
            << "<catalogue>" + QByteArray("<article paper='" + QByteArray(65536, ',') + "'/>").repeated(10);
        QTest::newRow("one article full of mistakes") << begin + "<forms>" + options;
        QTest::newRow("comment") << begin + "<!--" + QByteArray(10000000, '-');
        QTest::newRow("NUL") << begin + QByteArray(1, '\0');
        QTest::newRow("binary") << QByteArray("\x7f"
                                              "ELF\x02\x01\xff\xfe")
                                       .repeated(1000);
    }
    void refusesHostileFiles()
    {
        QFETCH(QByteArray, file);
        QTemporaryFile temporary;
        QVERIFY(temporary.open());
        temporary.write(file);
        QVERIFY(temporary.flush());
        const Outcome outcome = run({temporary.fileName()});
        QCOMPARE(outcome.exitCode, 2);
        QVERIFY(outcome.output.contains("[not-well-formed]\n")
                || outcome.output.contains("[limit-exceeded]\n"));
    }
};

QTEST_GUILESS_MAIN(tst_KTCatalogueChecker)
#include "tst_KTCatalogueChecker.moc"
