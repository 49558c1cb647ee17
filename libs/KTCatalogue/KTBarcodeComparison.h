#pragma once

#include "KTDifferenceList.h"

/** Compares the barcodes of two versions of an article. Not part of the library's interface. */
class KTBarcodeComparison
{
public:
    explicit KTBarcodeComparison(KTDifferenceList *list);

    void compare();

private:
    /** Finds for each barcode that has none yet its like, the next one with the same key. */
    template <typename Key>
    void match(Key key);
    void addChanges(int older, int newer);
    KTDifference &add(KTDifferenceRule rule, int older, int newer, const QString &message,
                      std::optional<KTAttributeId> attribute);

    KTDifferenceList *myList;
    const KTBarcodeDefinitionList &myOlder;
    const KTBarcodeDefinitionList &myNewer;
    /** The like of each one on the other side; -1 while there is none. */
    QVector<int> myNewerOf;
    QVector<int> myOlderOf;
};
