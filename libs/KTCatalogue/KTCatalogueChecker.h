#pragma once

#include "KTCatalogueReader.h"
#include "KTFinding.h"
#include "ktcatalogue_export.h"

#include <functional>
#include <memory>

class KTCatalogueCheckerImpl;
class QIODevice;

/**
 * Checks catalogues, one article at a time, and hands out what is wrong with them, in the order of the
 * places.
 *
 * Of a file it keeps nothing but where each article's number was first met. What it tells applies to this
 * version of the library, whose readers it asks; the library's own warnings about the texts go to Qt's
 * message handler as ever. Each thread needs a checker of its own.
 */
class KTCATALOGUE_EXPORT KTCatalogueChecker
{
public:
    using Receiver = std::function<void(const KTFinding &)>;
    /** Told the number of articles of the present file after each one. */
    using Listener = std::function<void(int articles)>;

    explicit KTCatalogueChecker(Receiver receiver, const KTRuleSeverities &severities = KTRuleSeverities());
    ~KTCatalogueChecker();

    void setListener(const Listener &listener);

    /** Reads the open device to its end; the name is that of the findings. False when it is no catalogue. */
    bool check(const QString &name, QIODevice *device);
    /** Reports a file that cannot be opened, which needs words for that: "cannot be opened: ...". */
    void reportUnreadable(const QString &name, const QString &words);

private:
    Q_DISABLE_COPY(KTCatalogueChecker)

    std::unique_ptr<KTCatalogueCheckerImpl> myImpl;
};
