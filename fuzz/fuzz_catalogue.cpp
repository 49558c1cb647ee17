#include "KTFuzz.h"

#include <KTArticleModel.h>
#include <KTArticleReport.h>
#include <KTCatalogueReader.h>

#include <QBuffer>
#include <QJsonDocument>

void KTFuzz::catalogue(const QByteArray &input)
{
    QBuffer file;
    file.setData(input);
    KT_REQUIRE(file.open(QIODevice::ReadOnly));
    KTCatalogueReader reader(&file);
    KTCatalogueArticle article;
    while (reader.readNext(&article)) {
        KT_REQUIRE(reader.errorText().isEmpty() && !article.elements().isEmpty());
        const KTArticleModel model(article.element());
        for (const QList<int> &pageCounts : {
                 QList<int>(), QList<int> {INT_MIN, 0, 1, INT_MAX}
        }) {
            const QString text = KTArticleReport::toText(model, pageCounts);
            // A terminal gets nothing but lines of visible text.
            for (const QChar character : text)
                KT_REQUIRE(character == u'\n' || character.category() != QChar::Other_Control);
            KT_REQUIRE(!QJsonDocument(KTArticleReport::toJSON(model, pageCounts)).toJson().isEmpty());
        }
        for (const int wish : KTTest::INTS)
            use(model.validPagesAround(wish));
    }
    KT_REQUIRE(reader.errorText().isEmpty() || reader.errorPosition().line >= 1);
    KT_REQUIRE(!reader.readNext(&article));
}
