#pragma once

#include <QCoreApplication>

/** What the program says to people, in English unless a translation is installed. */
struct KTToolText
{
    Q_DECLARE_TR_FUNCTIONS(KTToolText)
};
