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

qint64 placeOf(const KTFinding &finding)
{
    return finding.range.begin.offset;
}

} // namespace

KTArticleFindings::KTArticleFindings(const KTReportArticle &article)
{
    for (const KTFinding &finding : article.findings)
        entries(topicOf(finding)).append({&finding, false});
    for (QVector<Entry> &list : myEntries) {
        std::stable_sort(list.begin(), list.end(), [](const Entry &first, const Entry &second) {
            return placeOf(*first.finding) < placeOf(*second.finding);
        });
    }
}

KTArticleFindings::List KTArticleFindings::take(Topic topic, const QString &attribute)
{
    const QString article = KTCatalogueFormat::elementName(KTElementKind::Article);
    List taken;
    for (Entry &entry : entries(topic)) {
        if (entry.isTaken || entry.finding->attribute != attribute || entry.finding->element != article)
            continue;
        entry.isTaken = true;
        taken.append(entry.finding);
    }
    return taken;
}

KTArticleFindings::List KTArticleFindings::take(Topic topic, const KTFileRange &range)
{
    QVector<Entry> &list = entries(topic);
    List taken;
    const auto begin
        = std::lower_bound(list.begin(), list.end(), range.begin.offset,
                           [](const Entry &entry, qint64 place) { return placeOf(*entry.finding) < place; });
    for (auto entry = begin; entry != list.end() && placeOf(*entry->finding) < range.end.offset; ++entry) {
        if (entry->isTaken)
            continue;
        entry->isTaken = true;
        taken.append(entry->finding);
    }
    return taken;
}

KTArticleFindings::List KTArticleFindings::takeRest(Topic topic)
{
    List taken;
    for (const Entry &entry : std::exchange(entries(topic), {})) {
        if (!entry.isTaken)
            taken.append(entry.finding);
    }
    return taken;
}
