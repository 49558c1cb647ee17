#pragma once

#include "ktproductbase_export.h"

#include <QtGlobal>

/** The situations in which products are checked, as bits; the application defines and names them. */
enum KTPRODUCTBASE_EXPORT KTProductCheckerType : qint32 {};
