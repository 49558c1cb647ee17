#include "KTFontSizeManager.h"

KTFontSizeManager::KTFontSizeManager()
    : myDefaultFontSizes {6, 7, 8, 9, 10, 11, 12, 14, 16, 18, 20, 22, 24, 26, 28, 36, 48, 72}
{
}
