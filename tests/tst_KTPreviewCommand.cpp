#include <KTArticleModel.h>
#include <KTPreviewCommand.h>
#include <KTPreviewPainter.h>

#include "KTTestSupport.h"

#include <QImage>
#include <QTemporaryDir>
#include <QXmlStreamReader>
#include <QtTest>

namespace {

const char *const COVER = "<page type='fullcover' alignment='left, right' width='210' height='280' "
                          "bleed_top='3' bleed_bottom='4' bleed_left='5' bleed_right='6'/>";

std::optional<KTPreviewModel> modelOf(const QString &children, int pages, QString *objection)
{
    const QString article = u"<article id='1' pages='10' page_step='2' max_pages='20'>%1</article>"_s;
    return KTPreviewModel::create(KTArticleModel(KTTest::element(article.arg(children))), pages, objection);
}

KTExitCode preview(const QString &arguments, const QString &output)
{
    return KTPreviewCommand::run(
        (u"preview "_s + QStringLiteral(KT_SAMPLE_CATALOGUE) + QLatin1Char(' ') + arguments)
            .split(QLatin1Char(' '))
        << u"-o"_s << output);
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
    void writesEachFormat()
    {
        const QString svg = myDirectory.filePath(u"cover.svg"_s);
        QCOMPARE(preview(u"--article 7301 --pages 154"_s, svg), KTExitSuccess);
        QXmlStreamReader reader(contentOf(svg));
        QStringList texts;
        while (!reader.atEnd()) {
            if (reader.readNext() == QXmlStreamReader::Characters)
                texts.append(reader.text().trimmed().toString());
        }
        QVERIFY2(!reader.hasError(), qPrintable(reader.errorString()));
        for (const QString &text : {u"210.0"_s, u"spine 20.4"_s, u"446.4"_s, u"286.0"_s, u"206.0 × 276.0"_s,
                                    u"p. 0"_s, u"Page 154"_s, u"Rubinrot"_s, u"Einbandfarbe (alcolor)"_s})
            QVERIFY2(texts.contains(text), qPrintable(text));

        const QString pdf = myDirectory.filePath(u"cover.PDF"_s);
        QCOMPARE(preview(u"--article 7301"_s, pdf), KTExitSuccess);
        QVERIFY(contentOf(pdf).startsWith("%PDF-"));
        QVERIFY(contentOf(pdf).trimmed().endsWith("%%EOF"));

        const QString png = myDirectory.filePath(u"cover.png"_s);
        QCOMPARE(preview(u"--article 4120"_s, png), KTExitSuccess);
        const QImage image(png);
        QCOMPARE(image.width(), 1782);
        // White at the corners, and the cover somewhere in between.
        QCOMPARE(image.pixelColor(0, 0), QColor(Qt::white));
        QCOMPARE(image.pixelColor(image.width() - 1, image.height() - 1), QColor(Qt::white));
        QVERIFY(!image.allGray());
    }

    void refuses_data()
    {
        QTest::addColumn<QString>("arguments");
        QTest::addColumn<QString>("output");
        QTest::addColumn<int>("exitCode");
        QTest::newRow("no output") << u"--article 7301"_s << QString() << 64;
        QTest::newRow("unknown ending") << u"--article 7301"_s << u"cover.jpg"_s << 64;
        QTest::newRow("no ending") << u"--article 7301"_s << u"cover"_s << 64;
        QTest::newRow("no article number") << u"--pages 26"_s << u"x.svg"_s << 64;
        QTest::newRow("unknown article") << u"--article 1"_s << u"x.svg"_s << 1;
        QTest::newRow("no page sizes") << u"--article 9024"_s << u"x.svg"_s << 1;
        QTest::newRow("invalid page count") << u"--article 7301 --pages 27"_s << u"x.svg"_s << 1;
        QTest::newRow("missing folder") << u"--article 7301"_s << u"missing/x.svg"_s << 2;
        QTest::newRow("folder") << u"--article 7301"_s << u"folder.svg"_s << 2;
    }
    void refuses()
    {
        QFETCH(QString, arguments);
        QFETCH(QString, output);
        QDir(myDirectory.path()).mkdir(u"folder.svg"_s);
        const QString path = output.isEmpty() ? QString() : myDirectory.filePath(output);
        QTEST(int(preview(arguments, path)), "exitCode");
        QVERIFY(!QFileInfo(path).isFile());
    }

    void sparesTheCatalogue()
    {
        const QString catalogue = myDirectory.filePath(u"catalogue.svg"_s);
        QVERIFY(QFile::copy(QStringLiteral(KT_SAMPLE_CATALOGUE), catalogue));
        const QString link = myDirectory.filePath(u"link.svg"_s);
        QVERIFY(QFile::link(catalogue, link));
        QCOMPARE(KTPreviewCommand::run({u"preview"_s, catalogue, u"--article"_s, u"7301"_s, u"-o"_s, link}),
                 KTExitUnreadable);
        QCOMPARE(contentOf(catalogue), contentOf(QStringLiteral(KT_SAMPLE_CATALOGUE)));
    }

    void measures()
    {
        QString objection;
        const auto model
            = modelOf(QString::fromLatin1(COVER)
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

    void boundsSizes_data()
    {
        QTest::addColumn<QString>("children");
        QTest::addColumn<QString>("objection");
        const QString page = u"<page type='fullcover' alignment='left,right' height='100' %1/>"_s;
        const QString limits = u"; a preview shows sides from 1.0 to 5000.0 mm"_s;
        QTest::newRow("longest") << page.arg(u"width='5000'"_s) << QString();
        QTest::newRow("longer") << page.arg(u"width='5000.1'"_s)
                                << QString(u"has a page 'fullcover' of 5000.1 × 100.0 mm"_s + limits);
        QTest::newRow("shortest") << page.arg(u"width='1'"_s) << QString();
        QTest::newRow("shorter") << page.arg(u"width='0.9'"_s)
                                 << QString(u"has a page 'fullcover' of 0.9 × 100.0 mm"_s + limits);
        QTest::newRow("not a number")
            << page.arg(u"width='nan'"_s) << QString(u"has a page 'fullcover' of 0.0 × 100.0 mm"_s + limits);
        QTest::newRow("beyond int") << page.arg(
            u"width='1e300'"_s) << QString(u"has a page 'fullcover' of 214748364.7 × 100.0 mm"_s + limits);
        QTest::newRow("negative bleed") << page.arg(u"width='9' bleed_left='-1'"_s)
                                        << u"has a bleed of -1.0 mm; a preview shows 0.0 to 5000.0 mm"_s;
        QTest::newRow("slipcase without height")
            << page.arg(u"width='9' slipcase_width='8'"_s)
            << QString(u"has a slipcase cover of 8.0 × 0.0 mm"_s + limits);
        QTest::newRow("infinite spine")
            << QString(QString::fromLatin1(COVER)
                       + u"<composition><spine base_width='1e308' additional_width='1e308'/></composition>"_s)
            << u"has a spine of inf mm; a preview shows 0.0 to 5000.0 mm"_s;
        QTest::newRow("no page") << QString() << u"has no page sizes"_s;
    }
    void boundsSizes()
    {
        QFETCH(QString, children);
        QString objection;
        const auto model = modelOf(children, 10, &objection);
        QTEST(objection, "objection");
        QCOMPARE(model.has_value(), objection.isEmpty());
    }

    void boundsSheet()
    {
        QString options;
        for (int i = 0; i < 2000; ++i)
            options += u"<form key='k%1' value='v'/>"_s.arg(i % 400);
        for (int i = 0; i < 2000; ++i)
            options += u"<form key='k' value='v%1'/>"_s.arg(i);
        QString objection;
        const auto model
            = modelOf(QString::fromLatin1(COVER) + u"<forms>%1</forms>"_s.arg(options), 10, &objection);
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
