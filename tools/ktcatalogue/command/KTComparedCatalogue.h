#pragma once

#include "KTExitCode.h"
#include "KTRereadableFile.h"

#include <KTCatalogueIndex.h>

#include <memory>
#include <optional>

/** A catalogue named on the command line, any article of which can be read. */
class KTComparedCatalogue
{
public:
    /** With a number, of that article alone. */
    explicit KTComparedCatalogue(const QString &name, std::optional<int> articleId = std::nullopt);

    QString name() const { return myFile.name(); }
    /** Only where reportFailure() has given no exit code. */
    KTCatalogueIndex *index() { return myIndex.get(); }
    /** An exit code means that the file was refused, or is no longer what it was, which is then reported. */
    [[nodiscard]] std::optional<KTExitCode> reportFailure() const;

private:
    KTRereadableFile myFile;
    std::unique_ptr<KTCatalogueIndex> myIndex;
};
