#include "KTFigureSvg.h"
#include "KTHtmlWriter.h"
#include "KTReportSource.h"
#include "KTSpineSteps.h"
#include "KTTestSupport.h"

#include <QBuffer>
#include <QTemporaryDir>

namespace {

/** What the function writes. */
QString written(const std::function<void(KTHtmlWriter *)> &write)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    KTHtmlWriter html(&buffer);
    write(&html);
    return QString::fromUtf8(buffer.data());
}

KTArticle articleOf(const QString &xml)
{
    QDomDocument document;
    document.setContent(xml);
    return KTArticle(document.documentElement());
}

} // namespace

class tst_KTReport : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void writesForTwoLanguages_data()
    {
        const KTTest::Rows<QString, QString> row;
        // What HTML would not end at "/>" has an end tag.
        row("<td></td>", "td");
        row("<script></script>", "script");
        row("<svg></svg>", "svg");
    }
    void writesForTwoLanguages()
    {
        const auto [expected, name] = KTTest::row<QString, QString>();
        QCOMPARE(written([name = name](KTHtmlWriter *html) {
                     html->start(qPrintable(name));
                     html->end();
                 }),
                 expected);
    }

    void showsTexts_data()
    {
        const KTTest::Rows<QString, QString> row;
        row("a &lt;b&gt; &amp;amp;", "a <b> &amp;");
        row("\\u0000\\u001b\\u202e\\u2028", QString(u"\0\u001b\u202e\u2028"_s));
        row("\\ud800 \\xff", u"\xd800 \xdcff"_s);
        row("שלום 👩", "שלום 👩");
    }
    void showsTexts()
    {
        const auto [expected, text] = KTTest::row<QString, QString>();
        QCOMPARE(written([text = text](KTHtmlWriter *html) { html->element("b", text); }),
                 u"<b>%1</b>"_s.arg(expected));
    }

    void shortens_data()
    {
        const KTTest::Rows<QString, QString, int> row;
        row("", "", 0);
        row("abc", "abc", 3);
        row("ab… (3 characters)", "abc", 2);
        // Both halves of a character, or none.
        row("a… (3 characters)", "a💥", 2);
    }
    void shortens()
    {
        const auto [expected, text, length] = KTTest::row<QString, QString, int>();
        QCOMPARE(KTHtmlWriter::shortened(text, length), expected);
    }

    void writesNumbers_data()
    {
        const KTTest::Rows<QString, double> row;
        row("0", 0.0);
        row("0", -0.001);
        row("100", 100.0);
        row("20.4", 20.4);
        row("-1.25", -1.25);
        row("0", qInf());
    }
    void writesNumbers()
    {
        const auto [expected, number] = KTTest::row<QString, double>();
        QCOMPARE(KTHtmlWriter::number(number), expected);
    }

    void showsSpines_data()
    {
        const KTTest::Rows<QString, int, int, double, double> row;
        const QString spine = u"<article pages=\"%1\" max_pages=\"%2\" page_step=\"%3\"><composition><spine "
                              "packages_per_block=\"%4\" block_width=\"1\"/></composition></article>"_s;
        // How many steps there are, where the last one ends, and the first and the last width.
        row("every package", spine.arg(10).arg(20).arg(2).arg(1), 6, 20, 0.0, 5.0);
        row("every third", spine.arg(10).arg(20).arg(2).arg(3), 2, 20, 0.0, 1.0);
        row("incomplete step", spine.arg(10).arg(21).arg(2).arg(1), 6, 20, 0.0, 5.0);
        row("one count", spine.arg(10).arg(10).arg(0).arg(1), 1, 10, 0.0, 0.0);
        row("too many", spine.arg(1).arg(2000000001).arg(1).arg(1), 2000, 2000000001, 0.0, 2e9);
    }
    void showsSpines()
    {
        const auto [xml, count, last, narrow, wide] = KTTest::row<QString, int, int, double, double>();
        const KTSpineSteps spine(articleOf(xml));
        QCOMPARE(int(spine.steps.size()), count);
        QCOMPARE(spine.steps.constLast().last, last);
        QCOMPARE(spine.steps.constFirst().millimeters, narrow);
        QCOMPARE(spine.steps.constLast().millimeters, wide);
        QCOMPARE(spine.isSampled, count == KTSpineSteps::MAX_COUNTS);
    }

    void choosesScales_data()
    {
        const KTTest::Rows<int, int, QSizeF> row;
        // The number of figures, and their size in layout units.
        row("as it is", 1, 1, QSizeF(900, 620));
        row("too wide", 2, 1, QSizeF(901, 620));
        row("too high", 2, 1, QSizeF(900, 621));
        row("three rows", 2, 3, QSizeF(900, 620));
        row("the last of the fixed ones", 75, 1, QSizeF(67500, 100));
        row("beyond them", 76, 1, QSizeF(67501, 100));
        row("small ones", 1, 24, QSizeF(10, 10));
    }
    void choosesScales()
    {
        const auto [expected, count, size] = KTTest::row<int, int, QSizeF>();
        KTPreviewModel::Figure figure;
        figure.total = QRectF(QPointF(), size);
        QCOMPARE(KTFigureSvg::scale(QVector<KTPreviewModel::Figure>(count, figure)), expected);
    }

    void noticesChanges()
    {
        const QTemporaryDir folder;
        QFile file(folder.filePath(u"catalogue.xml"_s));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("<catalogue><article id=\"1\"/><article id=\"2\"/></catalogue>");
        QVERIFY(file.flush());
        KTReportSource source(file.fileName(), QString());
        QVERIFY(!source.prepare());
        int articles = 0;
        const KTReportSource::Receiver receiver {
            [](const KTArticle &) { return true; }, [&](const KTReportArticle &) { ++articles; }, {}};
        QVERIFY(!source.forEachArticle(receiver));
        QCOMPARE(articles, 2);
        // Shorter, but as well-formed as before.
        QVERIFY(file.resize(0) && file.seek(0));
        file.write("<catalogue><article id=\"1\"/></catalogue>");
        QVERIFY(file.flush());
        QCOMPARE(source.forEachArticle(receiver), std::make_optional(KTExitUnreadable));
    }
};

QTEST_GUILESS_MAIN(tst_KTReport)
#include "tst_KTReport.moc"
