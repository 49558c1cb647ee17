#pragma once

#include "ktcore_export.h"

#include <KTSingleton.h>

#include <QFont>
#include <QString>

/** Makes the fonts of the layout. Measuring them needs a QGuiApplication, see canMeasure(). */
class KTCORE_EXPORT KTFontCreator : public KTSingleton<KTFontCreator>
{
public:
    /** The family of the application's font. */
    QString defaultFontFamily() const;
    /**
     * The family in the size, in points and bounded by 1 and 10,000; the platform chooses another family for
     * one that it does not have. Its metrics are those at 96 dots per inch, whatever the monitor has.
     */
    [[nodiscard]] QFont createFont(const QString &family, int size) const;
    /** True when there is a QGuiApplication; without one Qt ends the program that measures a font. */
    bool canMeasure() const;
};
