#pragma once

#include "KTSpool.h"

#include <KTDifference.h>
#include <KTOrderCheck.h>

#include <array>
#include <memory>
#include <optional>

/** How many differences there are, shown or not. */
struct KTDifferenceCounts
{
    std::array<int, KTDifferenceRules::COUNT> rules {};
    std::array<int, KTDifferenceRules::KIND_COUNT> kinds {};

    void add(KTDifferenceRule rule);
    int of(KTDifferenceKind kind) const { return kinds[static_cast<std::size_t>(kind)]; }
    int of(KTDifferenceRule rule) const { return rules[static_cast<std::size_t>(rule)]; }
    int total() const;
    /** "2 breaking, 1 text", or "no difference". */
    QString toText() const;
};

/** What the changes do to saved orders. */
struct KTOrderCounts
{
    QString fileName;
    qint64 orders = 0;
    /** Lines that are no orders. */
    qint64 malformed = 0;
    /** Orders that could not be ordered before either. */
    qint64 refusedBefore = 0;
    /** Orders that were fine before and are not now. */
    qint64 broken = 0;
    /** How many of them are listed. */
    qint64 listed = 0;
};

/**
 * Writes the differences between two catalogues, the gravest kind first, as text, as a page or as a document.
 *
 * They wait, by kinds, until it is certain that there is an answer, many of them in temporary files, so
 * memory stays flat.
 */
class KTDifferenceWriter
{
public:
    struct Options
    {
        QString format;
        QString olderName;
        QString newerName;
        /** Only how many differences there are of each rule. */
        bool isSummary = false;
    };

    /** Null for a format that does not exist. */
    static std::unique_ptr<KTDifferenceWriter> create(const Options &options);
    static QStringList formats();

    virtual ~KTDifferenceWriter();
    KTDifferenceWriter(const KTDifferenceWriter &) = delete;
    KTDifferenceWriter &operator=(const KTDifferenceWriter &) = delete;

    /** With the number of saved orders that it hits, where any were looked at. */
    void write(const KTDifference &difference, std::optional<qint64> hits = std::nullopt);
    /** Lists an order that was fine before and is not now. */
    void writeBroken(const QString &fileName, const KTSavedOrder &order, const KTOrderVerdict &verdict);
    void setOrders(const KTOrderCounts &orders) { myOrders = orders; }

    const KTDifferenceCounts &counts() const { return myCounts; }
    /** Hands everything on to the device; false when anything could not be written or kept. */
    bool deliver(QIODevice *device);

protected:
    explicit KTDifferenceWriter(const Options &options);

    const Options &options() const { return myOptions; }
    const std::optional<KTOrderCounts> &orders() const { return myOrders; }

    /** Before and behind everything, and before and behind each kind that has differences. */
    virtual QString head() const = 0;
    virtual QString tail() const = 0;
    virtual QString kindHead(KTDifferenceKind) const { return QString(); }
    virtual QString kindTail(KTDifferenceKind) const { return QString(); }
    /** Before and behind the list of broken orders. */
    virtual QString ordersHead() const { return QString(); }
    virtual QString ordersTail() const { return QString(); }
    /** Between two entries, of whatever kind. */
    virtual QString separator() const { return QString(); }
    virtual QString entry(const KTDifference &difference, std::optional<qint64> hits,
                          bool isOfNextArticle) const = 0;
    virtual QString broken(const QString &fileName, const KTSavedOrder &order,
                           const KTOrderVerdict &verdict) const = 0;

private:
    /** The entries of a kind. */
    struct Part
    {
        KTSpool spool;
        bool isEmpty = true;
        int lastArticle = 0;
    };

    Options myOptions;
    KTDifferenceCounts myCounts;
    std::array<Part, KTDifferenceRules::KIND_COUNT> myParts;
    std::optional<KTOrderCounts> myOrders;
    Part myBroken;
};
