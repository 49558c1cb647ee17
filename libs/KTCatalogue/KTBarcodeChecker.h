#pragma once

#include "KTElementCursor.h"

#include <KTBarcodeDefinition.h>

#include <QHash>
#include <QString>

/**
 * Finds barcodes that are skipped, or that cannot be found or shown. Not part of the library's interface.
 *
 * Which images there are is kept for the next articles.
 */
class KTBarcodeChecker
{
public:
    /** Forgets the barcodes of the former article. */
    void begin();
    void check(KTElementCursor *cursor);

private:
    bool hasImage(const KTBarcodeDefinition &barcode);

    QHash<KTBarcodeDefinition, int> myLines;
    QHash<QString, bool> myImages;
};
