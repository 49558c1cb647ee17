#pragma once

#include <KTSingleton.h>
#include <KTSpotColor.h>

/** A singleton that lives in no library of its own, so that each binary could have one. */
class Q_DECL_EXPORT KTTestSingleton : public KTSingleton<KTTestSingleton>
{
};

/** What a shared library beside the test sees. */
namespace KTTestNeighbour {
Q_DECL_EXPORT const void *singleton();
Q_DECL_EXPORT const void *spotColorTable();
} // namespace KTTestNeighbour
