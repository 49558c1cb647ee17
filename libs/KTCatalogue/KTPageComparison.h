#pragma once

#include "KTDifferenceList.h"

/** Compares the page sizes of two versions of an article. Not part of the library's interface. */
class KTPageComparison
{
public:
    explicit KTPageComparison(KTDifferenceList *list)
        : myList(list)
    {
    }

    void compare();

private:
    /** Alignments of one page type, with their pages on both sides; -1 where there is none. */
    struct Group
    {
        qint64 type;
        int older;
        int newer;
        quint32 alignments;
    };

    [[nodiscard]] QVector<Group> groups() const;
    void compareGroup(const Group &group);
    void compareSizes(const Group &group, const QString &name, const QString &subject);
    void add(KTDifferenceRule rule, const Group &group, const QString &subject, const QString &message,
             const QString &before, const QString &after, KTAttributeId attribute);

    KTDifferenceList *myList;
};
