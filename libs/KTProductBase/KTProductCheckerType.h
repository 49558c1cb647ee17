#pragma once

#include "ktproductbase_export.h"

#include <KTFlagOperators.h>

#include <QtGlobal>

/**
 * The situations in which products are checked, as bits; the application defines and names them, and combines
 * them with `|`:
 *
 *     constexpr auto SHOP = static_cast<KTProductCheckerType>(1);
 *     constexpr auto CART = static_cast<KTProductCheckerType>(2);
 */
enum KTPRODUCTBASE_EXPORT KTProductCheckerType : qint32 {};
KT_DECLARE_FLAG_OPERATORS(KTProductCheckerType)
