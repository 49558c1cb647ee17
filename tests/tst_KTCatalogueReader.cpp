#include <KTCatalogueReader.h>

#include "KTTestSupport.h"
#include "KTTrickle.h"

#include <QBuffer>
#include <QDirIterator>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

namespace {

using Item = KTCatalogueReader::Item;

QByteArray content(const QString &fileName)
{
    QFile file(QStringLiteral(KT_TEST_DATA) + u'/' + fileName);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

bool isTakenByXmllint(const QString &fileName)
{
    QProcess xmllint;
    xmllint.setStandardErrorFile(QProcess::nullDevice());
    xmllint.start(u"xmllint"_s, {u"--noout"_s, u"--nonet"_s, u"--huge"_s, fileName});
    return xmllint.waitForFinished() && xmllint.exitCode() == 0;
}

QString text(const KTFilePosition &position)
{
    return u"%1:%2"_s.arg(position.line).arg(position.column);
}

/** The places of everything, and the bytes that the places of the file name. */
QString described(const KTCatalogueArticle &article, const QByteArray &file)
{
    QString description;
    const auto append = [&](const QString &what, const KTFileRange &range) {
        description += u"%1 %2-%3 [%4]\n"_s.arg(
            what, text(range.begin), text(range.end),
            QString::fromUtf8(file.mid(int(range.begin.offset), int(range.length()))
                                  .replace('\t', ' ')
                                  .replace('\n', '|')));
    };
    const KTXMLFragment &fragment = article.fragment();
    for (int i = 0; i < fragment.elements.size(); ++i) {
        const KTXMLFragment::Element &element = fragment.elements.at(i);
        append(fragment.view(element.name).toString() + u" tag"_s, article.tagRange(i));
        append(u"element"_s, article.elementRange(i));
        for (int j = element.firstAttribute; j < element.firstAttribute + element.attributeCount; ++j) {
            const KTXMLFragment::Attribute &attribute = fragment.attributes.at(j);
            append(fragment.view(attribute.name).toString() + u'='
                       + fragment.view(attribute.value).toString(),
                   article.attributeRange(i, j));
            append(u"value"_s, article.valueRange(i, j));
        }
    }
    return description;
}

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
        const int length = KTCatalogueReader::MAX_VALUE_LENGTH;
        const QByteArray longer(length + 1, 'x');
        row("two articles", "",
            "\xef\xbb\xbf<catalogue><x><article/></x><article id='1'/>t<article/></catalogue>", 2);
        row("markup in quiet places", "",
            article("<!-- <e a=' > --><?p <a b='?><![CDATA[ <e a='\">]] ]]>]]<e a='>' b=\"'/\"/>"), 1);
        row("truncated", "2:1: the tag has no '>'", "<catalogue>\n<article", 0);
        row("empty", "1:1: the file is empty", "", 0);
        row("end tag mismatch",
            "2:12: the end tag is that of 'x', but the element 'article' of line 2 is not closed",
            "<catalogue>\n  <article></x>", 0);
        row("1:1: the root element is 'html', not 'catalogue'", "\xef\xbb\xbf<html/>", 0);
        row("1:1: the encoding 'KOI8-R' is none of UTF-8, UTF-16, ISO-8859-1, ISO-8859-15 and windows-1252",
            "<?xml version='1.0' encoding='KOI8-R'?><catalogue/>", 0);
        row("1:3: a NUL character; the file is no text", QByteArray("<c\0>", 4), 0);
        row("NUL at the begin", "1:1: a NUL character; the file is no text", QByteArray("\0<c/>", 6), 0);
        row("compressed", "1:1: the file is compressed with gzip; unpack it first", "\x1f\x8b\x08", 0);
        row("1:34: the byte 0xe4 is not UTF-8; save the file as UTF-8, or name its encoding in the first "
            "line",
            article("<e a='\xe4'/>"), 0);
        row("document type", "1:1: limit exceeded: a catalogue has no document type declaration",
            "<!DOCTYPE catalogue [<!ENTITY a 'b'>]><catalogue/>", 0);
        row("1:34: there is no '&a;': XML knows '&amp;', '&lt;', '&gt;', '&quot;', '&apos;' and numbers such "
            "as '&#228;'",
            article("<e a='&a;'/>"), 0);
        row("longest value", "", article("<e a='" + QByteArray(length - 1, 'x') + "\"'/>"), 1);
        row("longer value", "2:6: limit exceeded: a value of more than 64 KiB",
            article("\n<e a='" + longer + "'/>"), 0);
        row("longer text", "1:28: limit exceeded: a value of more than 64 KiB", article(longer), 0);
        row("two long texts", "", article(longer.left(length) + "<e/>" + longer.left(length)), 1);
        row("longer section", "1:28: limit exceeded: a value of more than 64 KiB",
            article("<![CDATA[" + longer), 0);
        row("long comment", "", article("<!--" + longer.repeated(100) + "-->"), 1);
        row("overlong comment", "1:28: limit exceeded: a tag, comment or instruction of more than 16 MiB",
            article("<!--" + longer.repeated(300) + "-->"), 0);
        QByteArray most = "<e";
        for (int i = 0; i < KTCatalogueReader::MAX_ATTRIBUTES; ++i)
            most += " a" + QByteArray::number(i) + "=''";
        row("most attributes", "", article(most + "/>"), 1);
        row("1:8137: limit exceeded: more than 1024 attributes in one element",
            article(most + QByteArray(" b=''").repeated(200000)), 0);
        const int deepest = KTCatalogueReader::MAX_DEPTH - 2;
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
        while (reader.nextArticle(&article) == Item::Article)
            ++count;
        const KTCatalogueError failure = reader.error();
        QCOMPARE(reader.next(&article), failure.text.isEmpty() ? Item::End : Item::Error);
        QCOMPARE(count, articles);
        QCOMPARE(failure.text.isEmpty() ? QString() : text(failure.position) + u": "_s + failure.text, error);
    }

    void knowsPlaces()
    {
        const QByteArray file = content(u"places.xml"_s);
        // Columns count characters, and what stands in brackets is what the offsets mean.
        const QString expected = QString::fromUtf8(content(u"places.txt"_s));
        QVERIFY(!file.isEmpty() && !expected.isEmpty());
        QString first;
        for (int piece = 1; piece < 20; ++piece) {
            KTTrickle device(file, piece);
            KTCatalogueReader reader(&device);
            KTCatalogueArticle article;
            QCOMPARE(reader.next(&article), Item::Root);
            QCOMPARE(reader.next(&article), Item::Article);
            QVERIFY(article.root().nextSiblingElement(u"article"_s).isNull());
            QString description = described(article, file);
            QCOMPARE(reader.next(&article), Item::Article);
            description += described(article, file);
            QCOMPARE(reader.next(&article), Item::End);
            QCOMPARE(description, piece == 1 ? description : first);
            first = description;
        }
        QCOMPARE(first, expected);
    }

    void readsEncodings_data()
    {
        const KTTest::Rows<QByteArray, QByteArray> row;
        row("ISO-8859-1", "\xa4\xe4", "\xc2\xa4\xc3\xa4");
        row("iso-8859-15", "\xa4\xe4", "\xe2\x82\xac\xc3\xa4");
        row("windows-1252", "\x80\xe4", "\xe2\x82\xac\xc3\xa4");
        row("UTF-8", "\xe2\x82\xac", "\xe2\x82\xac");
    }
    void readsEncodings()
    {
        const auto [written, read] = KTTest::row<QByteArray, QByteArray>();
        const QByteArray file = QByteArray("<?xml version='1.0' encoding='") + QTest::currentDataTag()
            + "'?>\n<catalogue><article name='" + written + "' id='7'/></catalogue>";
        KTTrickle device(file, 5);
        KTCatalogueReader reader(&device);
        KTCatalogueArticle article;
        QCOMPARE(reader.nextArticle(&article), Item::Article);
        QCOMPARE(article.root().attribute(u"name"_s), QString::fromUtf8(read));
        const KTFileRange range = article.attributeRange(0, 1);
        QCOMPARE(file.mid(int(range.begin.offset), int(range.length())), QByteArray("id='7'"));
        QCOMPARE(range.begin.column, 29 + QString::fromUtf8(read).size());
    }

    void readsUtf16_data()
    {
        const KTTest::Rows<QByteArray, bool> row;
        row("little", "UTF-16LE", true);
        row("big", "UTF-16BE", true);
        row("little without mark", "UTF-16LE", false);
        row("big without mark", "UTF-16BE", false);
    }
    void readsUtf16()
    {
        const auto [codec, hasMark] = KTTest::row<QByteArray, bool>();
        const QString content
            = u"<?xml version='1.0'?>\n<catalogue><article name='\U0001F600' id='7'/></catalogue>"_s;
        const QByteArray file
            = KTTest::encoded((hasMark ? QString(QChar::ByteOrderMark) : QString()) + content, codec);
        KTTrickle device(file, 3);
        KTCatalogueReader reader(&device);
        KTCatalogueArticle article;
        QCOMPARE(reader.nextArticle(&article), Item::Article);
        QCOMPARE(article.root().attribute(u"name"_s), u"\U0001F600"_s);
        const KTFileRange range = article.attributeRange(0, 1);
        QCOMPARE(range.begin.column, 30);
        QCOMPARE(range.begin.offset, 2 * (content.indexOf(u"id="_s) + (hasMark ? 1 : 0)));
        QCOMPARE(range.length(), 2 * 6);
    }

    /** Well-formedness is the parser's business: another program with it takes and refuses the same files. */
    void agreesWithXmllint()
    {
        QTemporaryDir folder;
        int compared = 0;
        int refused = 0;
        for (const QString &path : {QStringLiteral(KT_FUZZ_CORPUS), QStringLiteral(KT_TEST_DATA)}) {
            QDirIterator files(path, QDir::Files, QDirIterator::Subdirectories);
            while (files.hasNext()) {
                QFile file(files.next());
                QVERIFY(file.open(QIODevice::ReadOnly));
                // The first byte of an input of the fuzz target is a question.
                const QByteArray content = file.readAll().mid(path == QStringLiteral(KT_FUZZ_CORPUS) ? 1 : 0);
                QBuffer buffer;
                buffer.setData(content);
                QVERIFY(buffer.open(QIODevice::ReadOnly));
                KTCatalogueReader reader(&buffer);
                KTCatalogueArticle article;
                while (reader.nextArticle(&article) == Item::Article) { }
                const KTCatalogueError error = reader.error();
                // Limits and the root element are ours, and xmllint ends at a NUL as if the file ended there.
                if (error.kind == KTCatalogueErrorKind::LimitExceeded
                    || error.text.contains(u"root element"_s) || error.text.contains(u"NUL"_s))
                    continue;
                QFile copy(folder.filePath(u"copy.xml"_s));
                QVERIFY(copy.open(QIODevice::WriteOnly) && copy.write(content) == content.size());
                copy.close();
                const bool isTaken = isTakenByXmllint(copy.fileName());
                QVERIFY2(isTaken == error.text.isEmpty(), qPrintable(file.fileName() + u": "_s + error.text));
                ++compared;
                refused += isTaken ? 0 : 1;
            }
        }
        QVERIFY2(compared > 50 && refused > 10 && compared - refused > 10,
                 qPrintable(u"%1 of %2 refused"_s.arg(refused).arg(compared)));
    }
};

QTEST_APPLESS_MAIN(tst_KTCatalogueReader)
#include "tst_KTCatalogueReader.moc"
