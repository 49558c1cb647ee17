#pragma once

#include <QByteArray>
#include <QVector>

#include <array>

struct KTXMLFragment;

/**
 * Tells whether two articles are written alike, but for the order of attributes and what is not read anyway:
 * then the library makes the same of them. Not part of the library's interface.
 */
class KTArticleDigest
{
public:
    using Digest = std::array<char, 16>;

    /** Of 128 bits, which different articles share by chance only. */
    Digest of(const KTXMLFragment &fragment);

private:
    /** Kept for the next article. */
    QByteArray myText;
    QVector<int> myOrder;
};
