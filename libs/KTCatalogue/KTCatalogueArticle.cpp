#include "KTCatalogueArticle.h"

#include "KTTextTracker.h"

KTFileRange KTCatalogueArticle::elementRange(int element) const
{
    const Tag &tag = myTagPlaces.at(element);
    return {tag.position, tag.elementEnd};
}

KTFileRange KTCatalogueArticle::tagRange(int element) const
{
    const Tag &tag = myTagPlaces.at(element);
    return rangeInTag(element, tag.begin, tag.end);
}

KTFileRange KTCatalogueArticle::attributeRange(int element, int attribute) const
{
    const Place &place = myAttributePlaces.at(attribute);
    return rangeInTag(element, place.nameBegin, place.valueEnd + 1);
}

KTFileRange KTCatalogueArticle::valueRange(int element, int attribute) const
{
    const Place &place = myAttributePlaces.at(attribute);
    return rangeInTag(element, place.valueBegin, place.valueEnd);
}

/** Counted only when it is asked for, which is only done for what is reported. */
KTFileRange KTCatalogueArticle::rangeInTag(int element, int begin, int end) const
{
    const Tag &tag = myTagPlaces.at(element);
    const char *const bytes = myTags.constData();
    KTTextTracker tracker(tag.position, myWidth);
    tracker.advance(bytes + tag.begin, bytes + begin);
    const KTFilePosition first = tracker.position();
    tracker.advance(bytes + begin, bytes + end);
    return {first, tracker.position()};
}
