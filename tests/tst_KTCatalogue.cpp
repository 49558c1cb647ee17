#include <KTCatalogue.h>

#include "KTTestSupport.h"

#include <QFile>
#include <QTemporaryDir>

namespace {

const QString FIRST = u"<catalogue a='\u00e4'>\n <article art_id='3' name='\u00e4'/><other/>\n"_s;
const QString SECOND = u" <article id='7' name='\u00fc'><page units='cm'/></article>"_s;
const QString REST = u"<article/><article id='3' name='again'/></catalogue>"_s;

void write(const QString &fileName, const QByteArray &content)
{
    QFile file(fileName);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
}

} // namespace

class tst_KTCatalogue : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void findsArticles_data()
    {
        const KTTest::Rows<QByteArray, QString> row;
        row("UTF-8", "", "");
        row("ISO-8859-15", "<?xml version='1.0' encoding='ISO-8859-15'?>", "");
        row("UTF-16LE", "<?xml version='1.0'?>", "");
    }
    void findsArticles()
    {
        const auto [declaration, unused] = KTTest::row<QByteArray, QString>();
        const QTemporaryDir folder;
        const QString name = folder.filePath(u"catalogue.xml"_s);
        const QString content = QString::fromLatin1(declaration) + FIRST + SECOND + REST;
        write(name, KTTest::encoded(content, QTest::currentDataTag()));
        KTCatalogue catalogue(name);
        QCOMPARE(catalogue.error().text, unused);
        QCOMPARE(catalogue.articleIds(), (QVector<int> {3, 7}));
        QVERIFY(catalogue.contains(7) && !catalogue.contains(1) && !catalogue.article(1));
        for (int i = 0; i < 2; ++i) {
            QCOMPARE(catalogue.article(7).value_or(KTArticle()).name(), u"\u00fc"_s);
            QCOMPARE(catalogue.article(3).value_or(KTArticle()).name(), u"\u00e4"_s);
        }
        KTCatalogueArticle article;
        QVERIFY(catalogue.read(7, &article));
        QCOMPARE(article.tagRange(1).begin.line, 3);
        QCOMPARE(article.tagRange(1).begin.column, SECOND.indexOf(u"<page"_s) + 1);
        QCOMPARE(int(catalogue.error().kind), int(KTCatalogueErrorKind::None));
    }

    void refusesFiles_data()
    {
        const KTTest::Rows<QByteArray, int, QString> row;
        row("broken", (FIRST + SECOND).toUtf8(), int(KTCatalogueErrorKind::NotWellFormed),
            "3: the element 'catalogue' of line 1 is not closed");
        row("no file", "", int(KTCatalogueErrorKind::Unreadable),
            "1: the file cannot be opened: No such file or directory");
    }
    void refusesFiles()
    {
        const auto [content, kind, error] = KTTest::row<QByteArray, int, QString>();
        const QTemporaryDir folder;
        const QString name = folder.filePath(u"catalogue.xml"_s);
        if (!content.isEmpty())
            write(name, content);
        const KTCatalogue catalogue(name);
        QCOMPARE(int(catalogue.error().kind), kind);
        QCOMPARE(u"%1: "_s.arg(catalogue.error().position.line) + catalogue.error().text, error);
        QVERIFY(catalogue.articleIds().isEmpty() && !catalogue.contains(3));
    }

    void noticesChanges_data()
    {
        const KTTest::Rows<QByteArray, bool> row;
        const QString whole = FIRST + SECOND + REST;
        row("longer", (whole + u'\n').toUtf8(), true);
        row("written again", whole.toUtf8(), false);
        row("another number at the place", QString(whole).replace(u"id='7'"_s, u"id='8'"_s).toUtf8(), true);
        row("another end of the article",
            QString(whole).replace(u"/></article>"_s, u"></page></article>"_s).left(whole.size()).toUtf8(),
            true);
        row("no article at the place", QByteArray(whole.toUtf8().size(), ' '), true);
    }
    void noticesChanges()
    {
        const auto [changed, keepsTime] = KTTest::row<QByteArray, bool>();
        const QTemporaryDir folder;
        const QString name = folder.filePath(u"catalogue.xml"_s);
        write(name, (FIRST + SECOND + REST).toUtf8());
        KTCatalogue catalogue(name);
        QVERIFY(catalogue.article(7));
        QFile file(name);
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QDateTime time = file.fileTime(QFileDevice::FileModificationTime);
        write(name, changed);
        QVERIFY(file.setFileTime(keepsTime ? time : time.addSecs(1), QFileDevice::FileModificationTime));
        QVERIFY(!catalogue.article(7));
        QCOMPARE(int(catalogue.error().kind), int(KTCatalogueErrorKind::Changed));
    }
};

QTEST_GUILESS_MAIN(tst_KTCatalogue)
#include "tst_KTCatalogue.moc"
