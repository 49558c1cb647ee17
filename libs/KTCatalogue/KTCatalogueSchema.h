#pragma once

#include "ktcatalogue_export.h"

class QIODevice;

/**
 * The format of catalogues as schemas, for editors that complete and explain elements, attributes and
 * keywords and for programs that validate. Made of KTCatalogueFormat and of the keyword tables.
 *
 * They refuse no catalogue that the readers read and KTCatalogueChecker finds nothing wrong with, and of the
 * others only what can be told without knowing the product: elements in the wrong place, and texts that are
 * no number, boolean, unit or colour. The documentation in them is translated like other texts of the
 * library.
 */
class KTCATALOGUE_EXPORT KTCatalogueSchema
{
public:
    /** W3C XML Schema 1.0. False when the device, which is to be open, does not take everything. */
    [[nodiscard]] static bool writeXSD(QIODevice *device);
    /** RELAX NG in its XML syntax, with the data types of XML Schema; false as above. */
    [[nodiscard]] static bool writeRelaxNG(QIODevice *device);
};
