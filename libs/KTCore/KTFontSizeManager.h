#pragma once

#include "ktcore_export.h"

#include <KTSingleton.h>

#include <QList>

/** The font sizes that the application offers. Set them before a second thread asks for them. */
class KTCORE_EXPORT KTFontSizeManager : public KTSingleton<KTFontSizeManager>
{
public:
    KTFontSizeManager();

    /** In points, the smallest first. */
    QList<int> defaultFontSizes() const { return myDefaultFontSizes; }
    /** Replaces the sizes; they are kept in the given order. */
    void setDefaultFontSizes(const QList<int> &sizes) { myDefaultFontSizes = sizes; }

private:
    QList<int> myDefaultFontSizes;
};
