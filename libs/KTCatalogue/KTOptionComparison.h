#pragma once

#include "KTDifferenceList.h"

#include <QHash>
#include <QPair>

/** Compares the options that two versions of an article offer. Not part of the library's interface. */
class KTOptionComparison
{
public:
    explicit KTOptionComparison(KTDifferenceList *list);

    /** True when there is nothing to compare, which is soon seen and mostly so. */
    static bool areSame(const KTConfiguredArticleVariantList &older,
                        const KTConfiguredArticleVariantList &newer);

    void compare();

private:
    /** Key and value, and how many of the same came before. */
    using Id = QPair<QPair<QString, QString>, int>;

    /** The options of one side. */
    struct Side
    {
        explicit Side(const KTConfiguredArticleVariantList &options);

        QStringList values(const QString &key) const;
        QString keyName(const QString &key) const;
        bool has(const QString &key) const { return byKey.contains(key); }

        const KTConfiguredArticleVariantList &list;
        /** In the order of the options. */
        QVector<Id> ids;
        QHash<Id, int> places;
        QHash<QPair<QString, QString>, int> counts;
        QStringList keys;
        QHash<QString, QVector<int>> byKey;
    };

    void compareKeys();
    void compareValues(const QString &key);
    void comparePreselection();
    void compareCharges();
    void compareRepetition();
    void compareRegrouping();
    void compareNames();
    void compareEach();
    void compareOrder();
    template <typename Getter>
    void compareShared(KTDifferenceRule rule, KTAttributeId attribute, const QString &what, Getter getter);

    /** The place of the same option on the other side; -1 where it is not. */
    static int placeIn(const Side &side, const Id &id) { return side.places.value(id, -1); }
    void addAbout(KTDifference *difference, int olderPlace, int newerPlace, const Id &id,
                  std::optional<KTAttributeId> attribute = std::nullopt) const;

    KTDifferenceList *myList;
    Side myOlder;
    Side myNewer;
};
