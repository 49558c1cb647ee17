#include "KTElementCursor.h"

#include <KTXMLParser.h>

#include <algorithm>

void KTElementCursor::begin(const KTCatalogueArticle &article)
{
    myArticle = &article;
    myFindings.clear();
    enter(0, KTElementKind::Unread);
}

void KTElementCursor::enter(int element, KTElementKind kind)
{
    myIndex = element;
    myKind = kind;
    myAttributes.fill(NO_ATTRIBUTE);
    if (kind == KTElementKind::Unread)
        return;
    myRows.clear();
    for (int i = firstAttribute(); i < endOfAttributes(); ++i) {
        myRows.append(KTCatalogueFormat::attribute(kind, nameOf(i)));
        if (myRows.last())
            myAttributes[static_cast<std::size_t>(myRows.last()->id)] = i;
    }
}

KTDistanceUnit KTElementCursor::unit() const
{
    const bool isParents = myKind == KTElementKind::Spine || myKind == KTElementKind::Barcode;
    const KTDistanceUnit unit = KTXMLParser::readUnit(fragment().element(isParents ? parent() : myIndex));
    // The library itself warns once more for each number.
    return unit.hasExactlyOneBit() ? unit : KTDistanceUnitLayout;
}

int KTElementCursor::firstOf(std::initializer_list<Id> ids) const
{
    const auto *const found = std::find_if(ids.begin(), ids.end(), [this](Id id) { return has(id); });
    return found == ids.end() ? NO_ATTRIBUTE : attribute(*found);
}

void KTElementCursor::reportAt(int element, KTRule rule, const QString &message, int attribute)
{
    const bool isElement = attribute == NO_ATTRIBUTE;
    myFindings.append(
        {rule, KTCheckRules::row(rule).severity, QString(),
         isElement ? myArticle->tagRange(element) : myArticle->attributeRange(element, attribute), 0,
         fragment().view(fragment().elements.at(element).name).toString(),
         isElement ? QString() : nameOf(attribute).toString(), message});
}

QVector<KTFinding> KTElementCursor::findings(int articleId)
{
    for (KTFinding &finding : myFindings)
        finding.articleId = articleId;
    std::stable_sort(myFindings.begin(), myFindings.end(),
                     [](const KTFinding &first, const KTFinding &second) {
                         return first.range.begin.offset < second.range.begin.offset;
                     });
    return myFindings;
}
