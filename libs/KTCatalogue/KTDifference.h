#pragma once

#include "KTCatalogueFormat.h"
#include "KTDifferenceRules.h"
#include "KTFilePosition.h"

#include <QString>

#include <optional>

/** A part of an article, by which its place in a file is found. */
struct KTArticlePart
{
    /** The article itself, or one of its page sizes, barcodes, options, or its spine. */
    KTElementKind element = KTElementKind::Article;
    /** The place in the article's list of such things; 0 where there is one only. */
    int index = 0;
    /** None where the whole element is meant; where it is not written, the element is meant, too. */
    std::optional<KTAttributeId> attribute;
};

/** Something that two catalogues, or two articles, have in different ways. */
struct KTDifference
{
    KTDifferenceRule rule;
    int articleId = 0;
    /** The later one of the article's names. */
    QString articleName;
    /** Names the thing as KTArticleDescription does: "options.alcolor.red", "pageCounts". */
    QString subject;
    /** What changes, for somebody who knows the article but not its XML; without a full stop. */
    QString message;
    /** The two states as short texts; empty where there is nothing on that side. */
    QString before;
    QString after;
    /** What the difference is about on each side; the article where the thing is not there. */
    KTArticlePart olderPart;
    KTArticlePart newerPart;
    /** Places in the two files; line 0 where the article is not there, or was not read from a file. */
    KTFileRange olderRange {
        {0, 0, 0},
        {0, 0, 0}
    };
    KTFileRange newerRange {
        {0, 0, 0},
        {0, 0, 0}
    };
    /** The option, or the key alone, that saved orders are looked through for; see KTDifferenceReach. */
    QString key;
    QString value;
};
