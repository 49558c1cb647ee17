#pragma once

#include "ktcatalogue_export.h"

#include <QString>

#include <optional>

class QIODevice;

/** What somebody has saved of an order: the article, perhaps the page count, and the choice. */
struct KTSavedOrder
{
    /** Of the file that it was read from, counted from 1. */
    qint64 line = 0;
    int articleId = 0;
    std::optional<int> pages;
    QString mcf;
};

/**
 * Reads saved orders, one a line: the article's number, the page count, which may be empty, and the MCF,
 * separated by tabs, in UTF-8. Lines that are empty or begin with "#" are skipped, the last fields may be
 * left out.
 *
 * Memory does not grow with the file, nor with its lines.
 */
class KTCATALOGUE_EXPORT KTSavedOrders
{
public:
    /** Bytes of a line. */
    static constexpr int MAX_LINE_LENGTH = 64 * 1024;

    enum class Item {
        Order,
        /** A line that is none; see error(). The next one may be. */
        Malformed,
        End,
        /** The file cannot be read any further; see error(). */
        Error,
    };

    /** Reads from the open device, which it does not own. */
    explicit KTSavedOrders(QIODevice *device)
        : myDevice(device)
    {
    }

    /** Reads the next line that says something; the argument gets the order, and of any line the number. */
    Item next(KTSavedOrder *order);
    /** Why the last item is none, without a full stop. */
    QString error() const { return myError; }

private:
    Item parse(const QByteArray &line, KTSavedOrder *order);
    void skipRest(char last);

    QIODevice *myDevice;
    qint64 myLine = 0;
    QByteArray myBuffer;
    QString myError;
};
