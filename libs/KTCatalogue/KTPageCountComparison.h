#pragma once

#include "KTDifferenceList.h"
#include "KTPageCountSet.h"

/**
 * Compares the page counts of two versions of an article, and the spine at each of them. Not part of the
 * library's interface.
 */
class KTPageCountComparison
{
public:
    explicit KTPageCountComparison(KTDifferenceList *list);

    void compare();

private:
    void compareCounts();
    void compareValidity();
    void compareSpines();
    void compareSpineWidths();
    KTDifference &addAboutCounts(KTDifferenceRule rule, const QString &message);
    KTDifference &addAboutSpine(KTDifferenceRule rule, const QString &message, const QString &before,
                                const QString &after, KTAttributeId attribute);

    KTDifferenceList *myList;
    const KTPageCountOrganization &myOlderPages;
    const KTPageCountOrganization &myNewerPages;
    KTPageCountSet myOlder;
    KTPageCountSet myNewer;
    KTPageCountSet myCommon;
};
