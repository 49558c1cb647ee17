#include "KTFuzz.h"

#include <KTArticleModel.h>
#include <KTArticleReport.h>
#include <KTCatalogueChecker.h>
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
        const QList<int> boundaries {INT_MIN, 0, 1, INT_MAX};
        for (const QList<int> &pageCounts : {QList<int>(), boundaries}) {
            const QString text = KTArticleReport::toText(model, pageCounts);
            // A terminal gets nothing but lines of visible text.
            for (const QChar character : text)
                KT_REQUIRE(character == u'\n' || character.category() != QChar::Other_Control);
            KT_REQUIRE(!QJsonDocument(KTArticleReport::toJSON(model, pageCounts)).toJson().isEmpty());
        }
        for (const int wish : KTTest::INTS)
            use(model.validPagesAround(wish));
    }
    KT_REQUIRE(!reader.readNext(&article));

    // The checker reads the same file to the same end, and says what stopped it.
    KT_REQUIRE(file.reset());
    const int lastLine = input.count('\n') + input.count('\r') + 1;
    int findings = 0;
    KTCatalogueChecker checker([&](const KTFinding &finding) {
        ++findings;
        KT_REQUIRE(finding.position.line >= 1 && finding.position.line <= lastLine);
        KT_REQUIRE(finding.position.column >= 1 && !finding.message.isEmpty());
    });
    KT_REQUIRE(checker.check(QStringLiteral("fuzz.xml"), &file) || findings > 0);
    KT_REQUIRE(reader.errorText().isEmpty() || findings > 0);
}
