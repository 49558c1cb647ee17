#pragma once

#include <QCoreApplication>

/** What this library says to people, in English unless a translation is installed. */
struct KTCatalogueText
{
    Q_DECLARE_TR_FUNCTIONS(KTCatalogueText)
};
