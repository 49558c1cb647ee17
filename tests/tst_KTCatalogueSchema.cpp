#include <KTCatalogueChecker.h>
#include <KTCatalogueSchema.h>
#include <KTXMLParser.h>

#include "KTTestSupport.h"

#include <QBuffer>
#include <QDirIterator>
#include <QProcess>
#include <QTemporaryDir>

namespace {

const QString SOURCE = QStringLiteral(KT_SOURCE_DIR "/");
const QString DATA = QStringLiteral(KT_TEST_DATA "/");

QByteArray contentOf(const QString &name)
{
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/** What the checker finds that is more than a hint. */
QVector<KTFinding> findingsIn(QIODevice *device)
{
    QVector<KTFinding> findings;
    KTCatalogueChecker checker([&findings](const KTFinding &finding) {
        if (finding.severity != KTSeverity::Hint)
            findings.append(finding);
    });
    device->open(QIODevice::ReadOnly);
    checker.check(QString(), device);
    return findings;
}

/** What xmllint objects to the files; empty when both schemas take all of them. */
QString refusal(const QStringList &files, const QString &schema)
{
    QProcess process;
    process.start(QStringLiteral(KT_XMLLINT),
                  QStringList {u"--noout"_s, schema == u"xsd"_s ? u"--schema"_s : u"--relaxng"_s,
                               SOURCE + u"schema/ktcatalogue."_s + schema}
                      + files);
    process.waitForFinished();
    QStringList lines = QString::fromUtf8(process.readAllStandardError()).split(u'\n', Qt::SkipEmptyParts);
    // A file that cannot be read and a schema that is none have other codes.
    const bool isDone = process.exitStatus() == QProcess::NormalExit
        && (process.exitCode() == 0 || process.exitCode() == 3);
    if (!isDone)
        return u"xmllint ends with %1: "_s.arg(process.exitCode()) + lines.join(u'\n');
    lines.erase(std::remove_if(lines.begin(), lines.end(),
                               [](const QString &line) { return line.endsWith(u" validates"_s); }),
                lines.end());
    return lines.join(u'\n');
}

const QStringList SCHEMAS {u"xsd"_s, u"rng"_s};

} // namespace

class tst_KTCatalogueSchema : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void isWhatTheToolWrites_data()
    {
        const KTTest::Rows<QString> row;
        row("xsd");
        row("rng");
    }
    void isWhatTheToolWrites()
    {
        const auto [format] = KTTest::row<QString>();
        QProcess tool;
        tool.start(QStringLiteral(KT_PROGRAM), {u"schema"_s, u"--language=en"_s, u"--format"_s, format});
        QVERIFY(tool.waitForFinished() && tool.exitCode() == 0);
        const QString name = u"schema/ktcatalogue."_s + format;
        const QByteArray written = tool.readAllStandardOutput();
        QVERIFY2(!written.isEmpty() && contentOf(SOURCE + name) == written,
                 qPrintable(u"run: ktcatalogue schema --language en --format %1 -o %2"_s.arg(format, name)));
    }

    void takesWhatIsClean()
    {
        // Every catalogue that lies about, and every one that the sessions hand to the checker.
        const QTemporaryDir scratch;
        QProcess bash;
        bash.setWorkingDirectory(DATA + u"rules"_s);
        bash.start(u"bash"_s,
                   {u"-c"_s,
                    u"ktcatalogue() { cat >\"$(mktemp -p '%1' --suffix=.xml)\"; }\n. ./check.sh\n"
                    "while read -r prompt command; do [ \"$prompt\" != '$' ] || eval \"$command\"\n"
                    "done <session.txt"_s.arg(scratch.path())});
        QVERIFY(bash.waitForFinished() && bash.exitCode() == 0);
        QStringList clean;
        int count = 0;
        for (const QString &folder : {SOURCE + u"examples"_s, SOURCE + u"tests"_s,
                                      SOURCE + u"fuzz/corpus/catalogue"_s, scratch.path()}) {
            QDirIterator files(folder, QDir::Files, QDirIterator::Subdirectories);
            while (files.hasNext()) {
                QFile file(files.next());
                if (!folder.endsWith(u"corpus/catalogue"_s) && !file.fileName().endsWith(u".xml"_s))
                    continue;
                ++count;
                if (findingsIn(&file).isEmpty())
                    clean.append(file.fileName());
            }
        }
        QVERIFY2(clean.size() > 40 && count > 100,
                 qPrintable(u"%1 of %2 are clean"_s.arg(clean.size()).arg(count)));
        for (const QString &schema : SCHEMAS)
            QCOMPARE(refusal(clean, schema), QString());
    }

    void leavesTheUnknownToTheChecker()
    {
        QFile file(DATA + u"schema/tolerated.xml"_s);
        QVERIFY(findingsIn(&file).size() >= 10);
        for (const QString &schema : SCHEMAS)
            QCOMPARE(refusal({file.fileName()}, schema), QString());
    }

    void refusesMistakes_data()
    {
        const KTTest::Rows<QString> row;
        for (const QString &name : QDir(DATA + u"schema"_s).entryList({u"wrong-*.xml"_s}))
            row(name.toUtf8().constData(), name);
    }
    void refusesMistakes()
    {
        const auto [name] = KTTest::row<QString>();
        QFile file(DATA + u"schema/"_s + name);
        QVERIFY(!findingsIn(&file).isEmpty());
        for (const QString &schema : SCHEMAS)
            QVERIFY2(refusal({file.fileName()}, schema).contains(u"fails to validate"_s), qPrintable(schema));
    }

    /** Texts around and between digits, with each character that XML has: what the readers take, the schemas
     * do. */
    void takesWhatReadersTake_data()
    {
        const KTTest::Rows<QString> row;
        row("barcode pageNr");
        row("page width");
        row("form key='k' value='v' preselected");
        row("form key='k' value='v' color");
        row("page units");
    }
    void takesWhatReadersTake()
    {
        const auto [place] = KTTest::row<QString>();
        const QString element = place.section(u' ', 0, 0);
        const QString parent = element == u"barcode"_s ? u"barcodes"_s
            : element == u"form"_s                     ? u"forms"_s
                                                       : QString();
        QStringList texts {u""_s,           u"  "_s,          u"2147483647"_s, u"-2147483648"_s,
                           u"2147483648"_s, u"1e308"_s,       u"1e309"_s,      u"1E+5"_s,
                           u"1e-5"_s,       u".5e1"_s,        u"5.e1"_s,       u"0x10"_s,
                           u"010"_s,        u"1,000"_s,       u"1e"_s,         u"mm,"_s,
                           u",mm"_s,        u"x, MM ,y"_s,    u"layoutUnit"_s, u"mm\ncm"_s,
                           u"\nmm"_s,       u"tRuE"_s,        u"yes"_s,        u"#abc"_s,
                           u"#AABBCCDD"_s,  u"#aabbccddee"_s, u"#123123123"_s, u"#123412341234"_s,
                           u"dark  RED"_s,  u"transparent"_s};
        for (int unicode = 9; unicode <= 0xfffd; ++unicode) {
            const QChar character(unicode);
            // Blanks, digits and signs of all scripts, and letters that become others in lower case.
            const bool isOdd = unicode < 0x100 || character.isSpace() || character.isDigit()
                || character.category() == QChar::Symbol_Math
                || character.category() == QChar::Punctuation_Dash
                || (character.isLetter() && character.toLower().unicode() < 0x80);
            if (character.isSurrogate() || !isOdd
                || (unicode < 0x20 && unicode != 10 && unicode != 13 && unicode != 9))
                continue;
            for (const QString &pattern :
                 {u"%15"_s, u"5%1"_s, u"1%15"_s, u"%1"_s, u"1e%15"_s, u"%1true%1"_s, u"fal%1e"_s, u"%1 red"_s,
                  u"%1#abc"_s, u"#abc%1"_s, u"r%1ed"_s, u"dar%1red"_s, u"%1mm"_s, u"cm%1"_s, u" %1inch"_s})
                texts.append(QString(pattern).replace(u"%1"_s, character));
        }
        const QTemporaryDir scratch;
        // One article is one line, so that findings can be told apart.
        const auto catalogueOf = [&place = place, &parent](const QStringList &values) {
            QString text = u"<catalogue>\n"_s;
            int id = 0;
            for (const QString &value : values) {
                QString escaped;
                for (const QChar character : value)
                    escaped += u"&#%1;"_s.arg(character.unicode());
                const QString inner = u"<%1='%2'/>"_s.arg(place, escaped);
                text += u"<article id='%1' productname='ALB1'>%2</article>\n"_s.arg(
                    QString::number(++id), parent.isEmpty() ? inner : u"<%1>%2</%1>"_s.arg(parent, inner));
            }
            return (text + u"</catalogue>\n"_s).toUtf8();
        };
        QByteArray all = catalogueOf(texts);
        QBuffer buffer(&all);
        QSet<int> bad;
        for (const KTFinding &finding : findingsIn(&buffer)) {
            if (finding.attribute == place.section(u' ', -1))
                bad.insert(finding.range.begin.line - 2);
        }
        QStringList read;
        for (int i = 0; i < texts.size(); ++i) {
            if (!bad.contains(i))
                read.append(texts.at(i));
        }
        QVERIFY2(read.size() > 10 && bad.size() > 10,
                 qPrintable(u"%1 are read, %2 are not"_s.arg(read.size()).arg(bad.size())));
        QFile file(scratch.filePath(u"read.xml"_s));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(catalogueOf(read));
        file.close();
        for (const QString &schema : SCHEMAS)
            QCOMPARE(refusal({file.fileName()}, schema), QString());
    }
};

QTEST_GUILESS_MAIN(tst_KTCatalogueSchema)
#include "tst_KTCatalogueSchema.moc"
