#include <KTArticle.h>
#include <KTArticleReport.h>
#include <KTCatalogueReader.h>

#include "KTTestSupport.h"

#include <QDirIterator>
#include <QDomDocument>
#include <QFile>
#include <QJsonDocument>

namespace {

QByteArray everythingIn(const KTArticle &article)
{
    return KTArticleReport::toJSON(article, {}).toUtf8() + article.spine().dump().toUtf8()
        + KTTest::logged(article.options()).toUtf8();
}

} // namespace

class tst_KTArticle : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void readsTheSameFromDomAndFile()
    {
        int count = 0;
        QDirIterator files(QStringLiteral(KT_SOURCE_DIR), {u"*.xml"_s}, QDir::Files,
                           QDirIterator::Subdirectories);
        while (files.hasNext()) {
            QFile file(files.next());
            QVERIFY(file.open(QIODevice::ReadOnly));
            QDomDocument document;
            // QDomDocument does not turn a tabulator in a value into a blank.
            if (file.fileName().contains(u"/build/"_s) || file.fileName().endsWith(u"/places.xml"_s)
                || !document.setContent(&file, false))
                continue;
            QVERIFY(file.reset());
            KTCatalogueReader reader(&file);
            KTCatalogueArticle article;
            QDomElement element = document.documentElement().firstChildElement(u"article"_s);
            while (reader.nextArticle(&article) == KTCatalogueReader::Item::Article) {
                QCOMPARE(everythingIn(KTArticle(article)), everythingIn(KTArticle(element)));
                element = element.nextSiblingElement(u"article"_s);
                ++count;
            }
            QVERIFY(reader.error().kind != KTCatalogueErrorKind::None || element.isNull());
        }
        QVERIFY(count > 20);
    }

    void isEmptyByDefault()
    {
        QCOMPARE(everythingIn(KTArticle()), everythingIn(KTArticle(QDomElement())));
        QVERIFY(!KTArticle().articleId().isValid() && KTArticle().options().isEmpty());
    }
};

QTEST_GUILESS_MAIN(tst_KTArticle)
#include "tst_KTArticle.moc"
