#include <KTCatalogueReader.h>

#include "KTTestSupport.h"

#include <QBuffer>

namespace {

/** A catalogue of one article around the text. */
QByteArray article(const QByteArray &text)
{
    return "<catalogue><article id='1'>" + text + "</article></catalogue>";
}

} // namespace

class tst_KTCatalogueReader : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void readsOrRefuses_data()
    {
        const KTTest::Rows<QString, QByteArray, int> row;
        const int length = KTCatalogueScanner::MAXIMUM_VALUE_LENGTH;
        const QByteArray longer(length + 1, 'x');
        row("two articles", "",
            "\xef\xbb\xbf<catalogue><x><article/></x><article id='1'/>t<article/></catalogue>", 2);
        row("markup in quiet places", "",
            article("<!-- <e a=' > --><?p <a b='?><![CDATA[ <e a='\">]] ]]>]]<e a='>' b=\"'/\"/>"), 1);
        row("truncated", "2:9: Premature end of document.", "<catalogue>\n<article", 0);
        row("empty", "1:1: Premature end of document.", "", 0);
        row("end tag mismatch", "2:16: Opening and ending tag mismatch.", "<catalogue>\n  <article></x>", 0);
        row("1:1: the root element is 'html', not 'catalogue'", "\xef\xbb\xbf<html/>", 0);
        row("1:44: the encoding is 'ISO-8859-1', not UTF-8",
            "<?xml version='1.0' encoding='ISO-8859-1'?><catalogue/>", 0);
        row("1:4: a NUL character; the file is not UTF-8 text", QByteArray("\xff\xfe<\0c\0", 6), 0);
        row("1:3: Encountered incorrectly encoded content.", article("<e a='\xe4'/>"), 0);
        row("document type", "1:1: limit exceeded: a catalogue has no document type declaration",
            "<!DOCTYPE catalogue [<!ENTITY a 'b'>]><catalogue/>", 0);
        row("1:37: Entity 'a' not declared.", article("<e a='&a;'/>"), 0);
        row("longest value", "", article("<e a='" + QByteArray(length - 1, 'x') + "\"'/>"), 1);
        row("longer value", "2:6: limit exceeded: a value of more than 64 KiB", article("\n<e a='" + longer),
            0);
        row("longer text", "1:27: limit exceeded: a value of more than 64 KiB", article(longer), 0);
        row("longer section", "1:28: limit exceeded: a value of more than 64 KiB",
            article("<![CDATA[" + longer), 0);
        row("long comment", "", article("<!--" + longer.repeated(100) + "-->"), 1);
        QByteArray most = "<e";
        for (int i = 0; i < KTCatalogueScanner::MAXIMUM_ATTRIBUTES; ++i)
            most += " a" + QByteArray::number(i) + "=''";
        row("most attributes", "", article(most + "/>"), 1);
        row("1:8137: limit exceeded: more than 1024 attributes in one element",
            article(most + QByteArray(" b=''").repeated(200000)), 0);
        const int deepest = KTCatalogueReader::MAXIMUM_DEPTH - 2;
        row("deepest", "",
            article(QByteArray("<e>").repeated(deepest) + QByteArray("</e>").repeated(deepest)), 1);
        row("2:763: limit exceeded: more than 256 levels of elements",
            article("\n" + QByteArray("<e>").repeated(100000)), 0);
    }
    void readsOrRefuses()
    {
        const auto [error, bytes, articles] = KTTest::row<QString, QByteArray, int>();
        QByteArray file(bytes);
        QBuffer buffer(&file);
        QVERIFY(buffer.open(QIODevice::ReadOnly));
        KTCatalogueReader reader(&buffer);
        KTCatalogueArticle article;
        int count = 0;
        while (reader.readNext(&article))
            ++count;
        QVERIFY(!reader.readNext(&article));
        QCOMPARE(count, articles);
        const KTFilePosition position = reader.errorPosition();
        const QString place = u"%1:%2: "_s.arg(position.line).arg(position.column);
        QCOMPARE(reader.errorText().isEmpty() ? QString() : place + reader.errorText(), error);
    }

    void buildsArticleWithPositions()
    {
        QByteArray file("<catalogue>\r\n <article id='1' n='\xc3\xa4\xe2\x82\xac\"' x:y='&lt;'>\n  <!-- ' -->"
                        "<?p '?><![CDATA[ ' ]]><forms><form\n   key='a'\tvalue = \"b\"/></forms></article>"
                        "<article/></catalogue>");
        QBuffer buffer(&file);
        QVERIFY(buffer.open(QIODevice::ReadOnly));
        KTCatalogueReader reader(&buffer);
        KTCatalogueArticle article;
        QVERIFY(reader.readNext(&article));
        QCOMPARE(article.element().attribute(u"n"_s), u"\u00e4\u20ac\""_s);
        QCOMPARE(article.element().attribute(u"x:y"_s), u"<"_s);
        const QDomElement form = article.element().firstChildElement(u"forms"_s).firstChildElement(u"form"_s);
        QCOMPARE(form.attribute(u"value"_s), u"b"_s);
        QString positions;
        const auto append = [&positions](const char *begin, const KTFilePosition &position) {
            positions += QString::fromLatin1(begin) + u"%1:%2"_s.arg(position.line).arg(position.column);
        };
        for (const KTCatalogueArticle::Element &element : article.elements()) {
            append(" ", element.position);
            for (int i = 0; i < element.attributeCount; ++i)
                append(" @", article.attributes().at(element.firstAttribute + i).position);
        }
        QCOMPARE(positions, u" 2:2 @2:11 @2:18 @2:26 3:35 3:42 @4:4 @4:12"_s);
        QVERIFY(reader.readNext(&article));
        QCOMPARE(article.elements().size(), 1);
        QCOMPARE(article.elements().constFirst().position.column, 43);
    }
};

QTEST_APPLESS_MAIN(tst_KTCatalogueReader)
#include "tst_KTCatalogueReader.moc"
