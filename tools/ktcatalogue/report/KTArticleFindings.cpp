#include "KTArticleFindings.h"

#include <KTCatalogueFormat.h>

#include <algorithm>
#include <utility>

namespace {

using Topic = KTArticleFindings::Topic;

Topic topicOfAttribute(const KTFinding &finding)
{
    const KTAttributeRow *const row
        = KTCatalogueFormat::attribute(KTElementKind::Article, QStringView(finding.attribute));
    if (!row)
        return Topic::Article;
    switch (row->id) {
    case KTAttributeId::ArticleArtId:
    case KTAttributeId::ArticleId:
    case KTAttributeId::ArticleName:
        return Topic::Article;
    case KTAttributeId::ArticlePages:
    case KTAttributeId::ArticleMaxPages:
    case KTAttributeId::ArticlePageStep:
    case KTAttributeId::ArticlePieces:
        return Topic::PageCounts;
    default:
        return Topic::Facts;
    }
}

Topic topicOf(const KTFinding &finding)
{
    const KTElementRow *const row = KTCatalogueFormat::element(QStringView(finding.element));
    if (!row)
        return Topic::Article;
    switch (row->kind) {
    case KTElementKind::Article:
        return topicOfAttribute(finding);
    case KTElementKind::Forms:
    case KTElementKind::Form:
        return Topic::Options;
    case KTElementKind::Composition:
    case KTElementKind::Spine:
        return Topic::PageCounts;
    case KTElementKind::Page:
        return Topic::Pages;
    case KTElementKind::Barcodes:
    case KTElementKind::Barcode:
        return Topic::Barcodes;
    default:
        return Topic::Article;
    }
}

} // namespace

KTArticleFindings::KTArticleFindings(const KTReportArticle &article)
{
    for (const KTFinding &finding : article.findings)
        myFindings[static_cast<std::size_t>(topicOf(finding))].append(&finding);
}

template <typename Predicate>
KTArticleFindings::List KTArticleFindings::takeWhere(Topic topic, Predicate isWanted)
{
    List &all = myFindings[static_cast<std::size_t>(topic)];
    const auto rest = std::stable_partition(all.begin(), all.end(),
                                            [&](const KTFinding *finding) { return !isWanted(*finding); });
    List taken;
    std::copy(rest, all.end(), std::back_inserter(taken));
    all.erase(rest, all.end());
    return taken;
}

KTArticleFindings::List KTArticleFindings::take(Topic topic, const QString &attribute)
{
    return takeWhere(topic, [&](const KTFinding &finding) {
        return finding.attribute == attribute
            && finding.element == KTCatalogueFormat::elementName(KTElementKind::Article);
    });
}

KTArticleFindings::List KTArticleFindings::take(Topic topic, const KTFileRange &range)
{
    return takeWhere(topic, [&](const KTFinding &finding) {
        const qint64 place = finding.range.begin.offset;
        return place >= range.begin.offset && place < range.end.offset;
    });
}

KTArticleFindings::List KTArticleFindings::takeRest(Topic topic)
{
    return std::exchange(myFindings[static_cast<std::size_t>(topic)], List());
}
