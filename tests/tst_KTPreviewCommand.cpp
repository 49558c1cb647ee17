#include <KTArticleModel.h>
#include <KTPreviewCommand.h>
#include <KTPreviewPainter.h>

#include "KTTestSupport.h"

#include <QImage>
#include <QTemporaryDir>

namespace {

const QString COVER = u"<page type='fullcover' alignment='left, right' width='210' height='280' "
                      "bleed_top='3' bleed_bottom='4' bleed_left='5' bleed_right='6'/>"_s;

std::optional<KTPreviewModel> modelOf(const QString &children, int pages, QString *objection)
{
    const QString article = u"<article id='1' pages='10' page_step='2' max_pages='20'>%1</article>"_s;
    return KTPreviewModel::create(KTArticleModel(KTTest::element(article.arg(children))), pages, objection);
}

/** Draws an article of the sample catalogue; the arguments are separated by blanks. */
KTExitCode preview(const QString &arguments)
{
    const QString all = u"preview %1 --article %2"_s.arg(QStringLiteral(KT_SAMPLE_CATALOGUE), arguments);
    return KTPreviewCommand::run(all.split(u' '));
}

QByteArray contentOf(const QString &fileName)
{
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

class tst_KTPreviewCommand : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() { QVERIFY(QDir::setCurrent(myDirectory.path())); }

    void writesEachFormat()
    {
        QCOMPARE(preview(u"7301 --pages 154 -o cover.svg"_s), KTExitSuccess);
        const QString svg = KTTest::xml(KTTest::element(QString::fromUtf8(contentOf(u"cover.svg"_s))));
        for (const QString &text : {u"210.0"_s, u"spine 20.4"_s, u"446.4"_s, u"286.0"_s, u"206.0 × 276.0"_s,
                                    u"p. 0"_s, u"Page 154"_s, u"Rubinrot"_s, u"Einbandfarbe (alcolor)"_s})
            QVERIFY2(svg.contains(u'>' + text + u'<'), qPrintable(text));

        QCOMPARE(preview(u"7301 -o cover.PDF"_s), KTExitSuccess);
        QVERIFY(contentOf(u"cover.PDF"_s).startsWith("%PDF-"));
        QVERIFY(contentOf(u"cover.PDF"_s).trimmed().endsWith("%%EOF"));

        QCOMPARE(preview(u"4120 -o cover.png"_s), KTExitSuccess);
        const QImage image(u"cover.png"_s);
        QCOMPARE(image.width(), 1782);
        // White at the corners, and the cover somewhere in between.
        QCOMPARE(image.pixelColor(0, 0), QColor(Qt::white));
        QCOMPARE(image.pixelColor(image.width() - 1, image.height() - 1), QColor(Qt::white));
        QVERIFY(!image.allGray());
    }

    void refuses()
    {
        QVERIFY(QDir().mkdir(u"folder.svg"_s));
        const QStringList files = QDir().entryList(QDir::Files);
        const auto exitCode = [](const QString &arguments) { return int(preview(arguments)); };
        KTTest::check(exitCode,
                      {"7301 -> 64", "7301 -o cover.jpg -> 64", "7301 -o cover -> 64", "1 -o x.svg -> 1",
                       "7301 -o missing/x.svg -> 2", "7301 -o folder.svg -> 2"});
        QCOMPARE(QDir().entryList(QDir::Files), files);
    }

    void sparesTheCatalogue()
    {
        QVERIFY(QFile::copy(QStringLiteral(KT_SAMPLE_CATALOGUE), u"catalogue.svg"_s));
        QVERIFY(QFile::link(u"catalogue.svg"_s, u"link.svg"_s));
        QCOMPARE(KTPreviewCommand::run(u"preview catalogue.svg --article 7301 -o link.svg"_s.split(u' ')),
                 KTExitUnreadable);
        QCOMPARE(contentOf(u"catalogue.svg"_s), contentOf(QStringLiteral(KT_SAMPLE_CATALOGUE)));
    }

    void measures()
    {
        QString objection;
        const auto model
            = modelOf(COVER
                          + u"<page type='normalpage' width='200' height='270'/>"
                            "<composition><spine packages_per_block='1' base_width='5' block_width='1' "
                            "additional_width='0.5'/></composition>"
                            "<barcodes><barcode position_x='10' position_y='270' width='30' height='10'/>"
                            "<barcode position_x='-20' position_y='270' width='30' height='10'/>"
                            "<barcode pageNr='14' position_x='0' position_y='10' width='30' height='10'/>"
                            "<barcode pageNr='20' width='30' height='10'/></barcodes>"_s,
                      14, &objection);
        QVERIFY2(model, qPrintable(objection));
        QCOMPARE(model->figures.size(), 2);
        const KTPreviewModel::Figure &cover = model->figures.constFirst();
        QCOMPARE(cover.spine, QRectF(2150, 30, 80, 2800));
        QCOMPARE(cover.panels.constLast().usable, QRectF(2230, 30, 2100, 2800));
        QCOMPARE(cover.total, QRectF(0, 0, 4390, 2870));
        QCOMPARE(cover.barcodes.size(), 1);
        QCOMPARE(cover.barcodes.constFirst().rect, QRectF(150, 2630, 300, 100));
        QCOMPARE(model->figures.constLast().name, u"Page 14"_s);
        QCOMPARE(model->notes,
                 QStringList({u"Barcode on page 0: outside, at -20.0, 260.0"_s,
                              u"Barcode on page 20: no such page"_s}));
    }

    void boundsSizes()
    {
        const auto objection = [](const QString &rest) {
            QString text;
            const auto model
                = modelOf(u"<page type='fullcover' alignment='left,right' height='100' "_s + rest, 10, &text);
            // What most objections end with.
            text.replace(u"; a preview shows sides from 1.0 to 5000.0 mm"_s, u"!"_s);
            return model ? QString(u"drawn"_s + text) : text;
        };
        KTTest::check(
            objection,
            {"width='5000'/> -> drawn", "width='1'/> -> drawn",
             "width='5000.1'/> -> has a page 'fullcover' of 5000.1 × 100.0 mm!",
             "width='0.9'/> -> has a page 'fullcover' of 0.9 × 100.0 mm!",
             "width='nan'/> -> has a page 'fullcover' of 0.0 × 100.0 mm!",
             "width='1e300'/> -> has a page 'fullcover' of 214748364.7 × 100.0 mm!",
             "width='9' slipcase_width='8'/> -> has a slipcase cover of 8.0 × 0.0 mm!",
             "width='9' bleed_left='-1'/> -> has a bleed of -1.0 mm; a preview shows 0.0 to 5000.0 mm",
             "width='9'/><composition><spine base_width='1e308' additional_width='1e308'/></composition>"
             " -> has a spine of inf mm; a preview shows 0.0 to 5000.0 mm"});
    }

    void boundsSheet()
    {
        QString options;
        for (int i = 0; i < 2000; ++i)
            options += u"<form key='k%1' value='v'/><form key='k' value='v%2'/>"_s.arg(i % 400).arg(i);
        QString objection;
        const auto model = modelOf(COVER + u"<forms>%1</forms>"_s.arg(options), 10, &objection);
        QVERIFY2(model, qPrintable(objection));
        const QSize size = KTPreviewPainter(*model).sheetSize();
        QCOMPARE(size.width(), 2970);
        QVERIFY(size.height() < 6000);
    }

private:
    QTemporaryDir myDirectory;
};

QTEST_MAIN(tst_KTPreviewCommand)
#include "tst_KTPreviewCommand.moc"
