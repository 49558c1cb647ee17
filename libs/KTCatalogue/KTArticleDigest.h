#pragma once

#include <QtGlobal>

struct KTXMLFragment;

/**
 * Tells whether two articles are written alike, but for the order of attributes and what is not read anyway:
 * then the library makes the same of them. Not part of the library's interface.
 */
namespace KTArticleDigest {

/** The same in each run; different articles share it by chance only. */
quint64 of(const KTXMLFragment &fragment);

} // namespace KTArticleDigest
