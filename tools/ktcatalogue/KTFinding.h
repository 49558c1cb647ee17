#pragma once

#include "KTCatalogueScanner.h"
#include "KTCheckRules.h"

#include <QString>

/** Something wrong with a catalogue, and where. */
struct KTFinding
{
    KTRule rule;
    KTSeverity severity;
    QString file;
    /** Line and column 0 where the file as a whole is meant. */
    KTFilePosition position;
    /** 0 outside of articles and in one without a number. */
    int articleId;
    /** Empty where the file itself is meant. */
    QString element;
    /** Empty where the element is meant. */
    QString attribute;
    /** What is wrong and what the application does with it. */
    QString message;
};
