#include <KTCatalogueReader.h>

#include "KTTestSupport.h"

#include <QBuffer>
#include <QtTest>

namespace {

/** A catalogue of one article around the text. */
QByteArray article(const QByteArray &text)
{
    return "<catalogue><article id='1'>" + text + "</article></catalogue>";
}

QByteArray attributes(int count)
{
    QByteArray text = "<e";
    for (int i = 0; i < count; ++i)
        text += " a" + QByteArray::number(i) + "=''";
    return text + "/>";
}

QByteArray nested(int depth)
{
    return QByteArray("<e>").repeated(depth) + QByteArray("</e>").repeated(depth);
}

} // namespace

class tst_KTCatalogueReader : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void readsOrRefuses_data()
    {
        QTest::addColumn<QByteArray>("file");
        QTest::addColumn<int>("articles");
        QTest::addColumn<QString>("error");
        const QString none;
        const int length = KTCatalogueScanner::MAXIMUM_VALUE_LENGTH;
        const auto value = [](int size) { return "<e a='" + QByteArray(size, 'x') + "'/>"; };
        QTest::newRow("two articles")
            << QByteArray("\xef\xbb\xbf<catalogue><x><article/></x><article id='1'/>t<article/></catalogue>")
            << 2 << none;
        QTest::newRow("markup in quiet places")
            << article("<!-- <e a=' > --><?p <a b='?><![CDATA[ <e a='\">]] ]]>]]<e a='>' b=\"'/\"/>") << 1
            << none;
        QTest::newRow("truncated") << QByteArray("<catalogue>\n<article") << 0
                                   << u"2:9: Premature end of document."_s;
        QTest::newRow("empty") << QByteArray() << 0 << u"1:1: Premature end of document."_s;
        QTest::newRow("end tag mismatch")
            << QByteArray("<catalogue>\n  <article></x>") << 0 << u"2:16: Opening and ending tag mismatch."_s;
        QTest::newRow("attribute twice")
            << article("<e a='1' a='2'/>") << 0 << u"1:44: Attribute 'a' redefined."_s;
        QTest::newRow("other root") << QByteArray("\n <html/>") << 0
                                    << u"2:2: the root element is 'html', not 'catalogue'"_s;
        QTest::newRow("other encoding")
            << QByteArray("<?xml version='1.0' encoding='ISO-8859-1'?><catalogue/>") << 0
            << u"1:44: the encoding is 'ISO-8859-1', not UTF-8"_s;
        QTest::newRow("UTF-16") << QByteArray("\xff\xfe<\0c\0", 6) << 0
                                << u"1:4: a NUL character; the file is not UTF-8 text"_s;
        QTest::newRow("not UTF-8") << article("<e a='\xe4'/>") << 0 << u"1:"_s;
        QTest::newRow("document type")
            << QByteArray("<!DOCTYPE catalogue [<!ENTITY a 'b'>]><catalogue/>") << 0
            << u"1:1: limit exceeded: a catalogue has no document type declaration"_s;
        QTest::newRow("unknown entity") << article("<e a='&a;'/>") << 0 << u"1:"_s;
        QTest::newRow("longest value") << article(value(length)) << 1 << none;
        QTest::newRow("longer value") << article("\n" + value(length + 1)) << 0
                                      << u"2:6: limit exceeded: a value of more than 64 KiB"_s;
        QTest::newRow("longer text") << article(QByteArray(length + 1, 'x')) << 0
                                     << u"1:27: limit exceeded: a value of more than 64 KiB"_s;
        QTest::newRow("longer section") << article("<![CDATA[" + QByteArray(length + 1, 'x')) << 0
                                        << u"1:28: limit exceeded: a value of more than 64 KiB"_s;
        QTest::newRow("long comment") << article("<!--" + QByteArray(4 * length, 'x') + "-->") << 1 << none;
        QTest::newRow("most attributes")
            << article(attributes(KTCatalogueScanner::MAXIMUM_ATTRIBUTES)) << 1 << none;
        QTest::newRow("more attributes")
            << article(attributes(KTCatalogueScanner::MAXIMUM_ATTRIBUTES + 1)) << 0
            << u"1:8137: limit exceeded: more than 1024 attributes in one element"_s;
        QTest::newRow("many more attributes")
            << article(attributes(200000)) << 0
            << u"1:8137: limit exceeded: more than 1024 attributes in one element"_s;
        QTest::newRow("deepest") << article(nested(KTCatalogueReader::MAXIMUM_DEPTH - 2)) << 1 << none;
        QTest::newRow("deeper") << article("\n" + nested(100000)) << 0
                                << u"2:763: limit exceeded: more than 256 levels of elements"_s;
    }
    void readsOrRefuses()
    {
        QFETCH(QByteArray, file);
        QFETCH(QString, error);
        QBuffer buffer(&file);
        QVERIFY(buffer.open(QIODevice::ReadOnly));
        KTCatalogueReader reader(&buffer);
        KTCatalogueArticle article;
        int articles = 0;
        while (reader.readNext(&article))
            ++articles;
        QVERIFY(!reader.readNext(&article));
        QTEST(articles, "articles");
        const KTFilePosition position = reader.errorPosition();
        const QString text = u"%1:%2: %3"_s.arg(position.line).arg(position.column).arg(reader.errorText());
        if (error.isNull())
            QCOMPARE(reader.errorText(), QString());
        else if (error.size() < 8)
            QVERIFY2(text.startsWith(error) && text.size() > error.size() + 8, qPrintable(text));
        else
            QCOMPARE(text, error);
    }

    void buildsArticleWithPositions()
    {
        QByteArray file("<catalogue>\r\n <article id='1' n='\xc3\xa4\xe2\x82\xac' x:y='&lt;'>\n  "
                        "<forms><form\n   key='a'\tvalue = \"b\"/></forms></article><article/></catalogue>");
        QBuffer buffer(&file);
        QVERIFY(buffer.open(QIODevice::ReadOnly));
        KTCatalogueReader reader(&buffer);
        KTCatalogueArticle article;
        QVERIFY(reader.readNext(&article));
        QCOMPARE(article.element().attribute(u"n"_s), u"\u00e4\u20ac"_s);
        QCOMPARE(article.element().attribute(u"x:y"_s), u"<"_s);
        const QDomElement form = article.element().firstChildElement(u"forms"_s).firstChildElement(u"form"_s);
        QCOMPARE(form.attribute(u"value"_s), u"b"_s);
        QStringList positions;
        for (const KTCatalogueArticle::Element &element : article.elements()) {
            positions.append(u"%1:%2"_s.arg(element.position.line).arg(element.position.column));
            for (int i = 0; i < element.attributeCount; ++i) {
                const KTFilePosition position = article.attributes().at(element.firstAttribute + i).position;
                positions.append(u"@%1:%2"_s.arg(position.line).arg(position.column));
            }
        }
        QCOMPARE(positions.join(QLatin1Char(' ')), u"2:2 @2:11 @2:18 @2:25 3:3 3:10 @4:4 @4:12"_s);
        QVERIFY(reader.readNext(&article));
        QCOMPARE(article.elements().size(), 1);
        QCOMPARE(article.elements().constFirst().position.column, 43);
    }
};

QTEST_APPLESS_MAIN(tst_KTCatalogueReader)
#include "tst_KTCatalogueReader.moc"
