#include "KTCatalogueSchema.h"

#include "KTRelaxNGWriter.h"
#include "KTXSDWriter.h"

bool KTCatalogueSchema::writeXSD(QIODevice *device)
{
    return KTXSDWriter(device).write();
}

bool KTCatalogueSchema::writeRelaxNG(QIODevice *device)
{
    return KTRelaxNGWriter(device).write();
}
