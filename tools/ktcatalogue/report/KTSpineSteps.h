#pragma once

#include <QVector>

class KTArticle;

/** How the spine of an article grows with its page counts, which lie close together in steps. */
struct KTSpineSteps
{
    /** Page counts, one after the other, with a spine of the same width. */
    struct Step
    {
        int first;
        int last;
        double millimeters;
    };

    /** Of more page counts some are looked at, evenly; nobody can tell the difference. */
    static constexpr int MAX_COUNTS = 2000;

    explicit KTSpineSteps(const KTArticle &article);

    QVector<Step> steps;
    /** True when not every page count was looked at. */
    bool isSampled = false;
};
