#include <KTCatalogueChecker.h>

#include "KTTestSupport.h"

#include <QBuffer>

namespace {

/**
 * A file with the attributes of an article and, after a ">", its children; a whole file when it begins with
 * "<".
 *
 * The article stands in line 2, the attributes from column 37 on.
 */
QByteArray catalogue(const QString &text)
{
    if (text.startsWith(u'<'))
        return text.toUtf8();
    const bool isOpen = text.contains(u'>') && !text.startsWith(u'/');
    const QString file = u"<catalogue>\n<article id='4' productname='ALB42' %1%2\n</catalogue>"_s;
    return file.arg(text, isOpen ? u"</article>"_s : u"/>"_s).toUtf8();
}

/** The findings as "line:column rule: message". */
QStringList findings(QByteArray file)
{
    QStringList lines;
    QBuffer buffer(&file);
    buffer.open(QIODevice::ReadOnly);
    KTCatalogueChecker checker([&lines](const KTFinding &finding) {
        lines.append(u"%1:%2 %3: %4"_s.arg(QString::number(finding.position.line),
                                           QString::number(finding.position.column),
                                           KTCheckRules::name(finding.rule), finding.message));
    });
    checker.check(u"-"_s, &buffer);
    return lines;
}

} // namespace

class tst_KTCatalogueChecker : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    // A catalogue that a rule finds fault with, the place and the rule, a part of the message, and a similar
    // catalogue that is fine.
    void findsWhatIsWrong_data()
    {
        const KTTest::Rows<QString, QString, QString, QString> row;
        row("<catalogue>\n<article", "2:9 not-well-formed",
            "Premature end of document; the application refuses the file", "<catalogue/>");
        row("<!DOCTYPE catalogue><catalogue/>", "1:1 limit-exceeded", "no document type",
            "<catalogue><!-- --></catalogue>");
        row(">\n <formes/>", "3:2 unknown-element", "did you mean 'forms'?", ">\n <forms/>");
        row("><form key='a'/>", "2:38 unknown-element", "it belongs into 'forms'",
            "><forms><form key='a' value='b'/></forms>");
        row("<catalogue><articles><x/></articles></catalogue>", "1:12 unknown-element",
            "did you mean 'article'?", "<catalogue><?a <x>?><!-- <x/> --></catalogue>");
        row("maxpages='7'", "2:37 unknown-attribute", "did you mean 'max_pages'?",
            "max_pages='1' xml:lang='de'");
        row("<catalogue version='1'/>", "1:12 unknown-attribute", "of 'catalogue'",
            "<catalogue xmlns:x='y'/>");
        row("><forms/><forms><x/></forms>", "2:46 repeated-element", "skips this one",
            "><page/><page/><forms/>");
        row("article_class='picture_box' pieces='2'", "2:65 ignored-attribute", "1 to 30, step 1",
            "pieces='2'");
        row("<catalogue><article id='6322' productname='CAL51' pages='3'/></catalogue>",
            "1:51 ignored-attribute", "always has 25 pages",
            "<catalogue><article id='6322' productname='CAL51'/></catalogue>");
        row("<catalogue><article id='0' productname='A'/></catalogue>", "1:21 no-article-id",
            "no order can name", "<catalogue><article id='1' art_id='-1' productname='A'/></catalogue>");
        row("/><article id='20' productname='A'/><article id='4' productname='A'", "2:73 duplicate-id",
            "line 2", "/><article id='20' productname='A'");
        row("art_id='5'", "2:10 conflicting-ids", "the application takes 5", "art_id='4'");
        row("<catalogue><article id='1'/></catalogue>", "1:12 no-product-name", "takes 'ALB9'",
            "<catalogue><article id='1' productname=''/></catalogue>");
        row("cover_type=' hardcovr, Booklet'", "2:37 unknown-keyword", "did you mean 'HARDCOVER'?",
            "cover_type=' hardcover, Booklet'");
        row("><page alignment='tip'/>", "2:44 unknown-keyword", "the default, 'left'",
            "><page type='fullcover' alignment='LEFT,right'/>");
        row("spot_colors='gold,,silver'", "2:37 unknown-keyword", "an empty entry", "spot_colors=''");
        row("price_class='ABL9'", "2:37 unknown-price-class", "'ABL' is no known family",
            "price_class='FOP999'");
        row("price_class='97'", "2:37 unknown-price-class", "bills '97'", "price_class='0ABL'");
        row("shipping_group='2b'", "2:37 shipping-group", "no shipping group (-1)", "shipping_group='-1'");
        row("page_step='2.0'", "2:37 unreadable-number",
            "no whole number; the application takes the default: 1 to 1, step 0", "page_step=' 2 '");
        row("pages='2147483648'", "2:37 unreadable-number", "is out of range", "pages='2147483647'");
        row("><composition><spine base_width='NaN'/></composition>", "2:58 unreadable-number",
            "is not finite", "><page width='-1e3'/>");
        row("><page width='1e999'/>", "2:44 unreadable-number", "is out of range", "><page width='1e300'/>");
        row("><barcodes><barcode width='1,5'/></barcodes>", "2:57 unreadable-number",
            "is no number; the application takes 1; did you mean '1.5'?",
            "><barcodes><barcode width='1.5'/></barcodes>");
        row("><page height='1.2.1'/>", "2:44 unreadable-number", "is no number", "><page height='.5'/>");
        row("><forms><form key='a' value='b' preselected='yes'/></forms>", "2:69 unreadable-boolean",
            "takes false", "><forms><form key='a' value='b' preselected='TRUE'/></forms>");
        row("><page units='mmm' width='2'/>", "2:44 unknown-unit", "did you mean 'mm'?",
            "><page units='Inch' width='2'/>");
        row("><composition units='mm,cm'/>", "2:51 unknown-unit", "layout units of 0.1 mm",
            "><barcodes units=''/>");
        row("><forms><form key='a' value='b' color='blakc'/></forms>", "2:69 unknown-color",
            "did you mean 'black'?",
            "><forms><form key='a' value='b' color='#80123456'/><form key='a' value='c' "
            "color='Black'/></forms>");
        row("pages='0'", "2:37 page-count-range", "not valid; they begin at 1", "pages='1'");
        row("pages='2000000000' pieces='2'", "2:56 page-count-range", "so the application cuts it off",
            "pages='1000000000' pieces='2'");
        row("pages='40' max_pages='26' page_step='2'", "2:48 pages-inverted",
            "a wish for 26 pages becomes 40", "pages='26' max_pages='40' page_step='2'");
        row("max_pages='9' page_step='-2'", "2:51 negative-page-step", "1 to 9, step -2",
            "max_pages='9' page_step='2'");
        row("max_pages='9'", "2:37 no-page-step", "a wish for 9 pages becomes 1", "max_pages='1'");
        row("pages='26' max_pages='31' page_step='2'", "2:63 uneven-page-step",
            "the last one offered is 30; a wish for 31 pages becomes 32",
            "pages='26' max_pages='30' page_step='2'");
        row("><composition><spine packages_per_block='2'/></composition>", "2:58 spine-without-step",
            "never grows",
            "max_pages='3' page_step='2'><composition><spine packages_per_block='2'/></composition>");
        row("article_class='picture_box'><composition><spine packages_per_block='2'/></composition>",
            "2:85 spine-without-step", "never grows",
            "><composition><spine packages_per_block='0'/></composition>");
        row("><forms><form key='a' value=''/></forms>", "2:45 incomplete-option",
            "no value; the application skips", "><forms><form key='a' value=' '/></forms>");
        row("><forms><form key='a;b' value='c'/></forms>", "2:61 compound-parts", "leave the option out",
            "><forms><form key='a;b' value='c;d'/></forms>");
        row("><forms><form key='a' value='b+c'/></forms>", "2:59 reserved-character",
            "writes the option as 'a:b+c' in MCF, which reads back as nothing",
            "><forms><form key='a' value='b&amp;-c'/></forms>");
        row("><forms><form key='%2' value='b'/></forms>", "2:51 reserved-character",
            "reads back as 'b:", "><forms><form key='100%' value='b'/></forms>");
        row(">\n<forms><form key='a' value='b'/><form key='a' value='b'/></forms>", "3:33 duplicate-option",
            "in line 3",
            ">\n<forms><form key='a' value='b'/><form key='a' value='B'/></forms></article>\n<article id='5' "
            "productname='ALB42'><forms><form key='a' value='b'/></forms>");
        row("><forms><form key='a' value='b' preselected='1'/><form key='a' value='c' preselected='1'/><form "
            "key='b' value='d' preselected='1'/></forms>",
            "2:110 several-preselected", "the last one, 'c'",
            "><forms><form key='a' value='b' preselected='1'/><form key='b' value='c' "
            "preselected='1'/></forms>");
        row("><barcodes><barcode height='0.09'/></barcodes>", "2:57 barcode-dropped", "skips it",
            "><barcodes><barcode height='0.1'/></barcodes>");
        row("><barcodes><barcode image=''/></barcodes>", "2:57 barcode-dropped", "empty image name",
            "><barcodes units='layoutunit'><barcode/></barcodes>");
        row("><barcodes><barcode/><barcode pageNr='2' width='1.0'/></barcodes>", "2:58 barcode-same-place",
            "in line 2",
            "><barcodes><barcode/><barcode position_x='2'/></barcodes></article><article id='5' "
            "productname='A'><barcodes><barcode/></barcodes>");
        row("><barcodes><barcode image='../picshelf/dummy-barcode.png'/></barcodes>", "2:57 barcode-image",
            "no barcode", "><barcodes><barcode image='dummy-barcode.png'/></barcodes>");
    }
    void findsWhatIsWrong()
    {
        const auto [bad, rule, words, good] = KTTest::row<QString, QString, QString, QString>();
        QCOMPARE(findings(catalogue(good)), QStringList());
        const QStringList found = findings(catalogue(bad));
        QCOMPARE(found.size(), 1);
        QCOMPARE(found.constFirst().section(u": "_s, 0, 0), rule);
        QVERIFY2(found.constFirst().contains(words), qPrintable(found.constFirst()));
    }

    // What is long or wrong over and over takes no time out of proportion.
    void bearsHostileFiles()
    {
        const QByteArray begin = "<catalogue><article id='1'>";
        const QByteArray commas(65536, ',');
        const QByteArray option = "<form key='a;' value='1;2' color='x' preselected='1'/>";
        for (const QByteArray &file :
             {QByteArray(begin + QByteArray("<x y='" + commas + "'/>").repeated(50)),
              QByteArray("<catalogue>" + QByteArray("<article paper='" + commas + "'/>").repeated(10)),
              QByteArray(begin + "<forms>" + option.repeated(2000))})
            QVERIFY(findings(file).constLast().endsWith(u"the application refuses the file"_s));
    }
};

QTEST_APPLESS_MAIN(tst_KTCatalogueChecker)
#include "tst_KTCatalogueChecker.moc"
