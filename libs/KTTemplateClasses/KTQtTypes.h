#pragma once

#include <QHash>
#include <QString>

// Types that Qt 6 made wider, for code that is built with either.

/** A size of Qt's containers or an index into them: int with Qt 5, qsizetype with Qt 6. */
using KTSize = decltype(QString().size());

/** What qHash() takes as seed and gives: uint with Qt 5, size_t with Qt 6. */
using KTHashValue = decltype(qHash(QString()));
