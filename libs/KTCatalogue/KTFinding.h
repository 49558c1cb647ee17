#pragma once

#include "KTCheckRules.h"
#include "KTFilePosition.h"

#include <QString>

/** Something wrong with a catalogue, and where. */
struct KTFinding
{
    KTRule rule;
    KTSeverity severity;
    /** The name that the checker was given. */
    QString file;
    /** The start tag, or the attribute with its value; line and column 0 where the whole file is meant. */
    KTFileRange range;
    /** 0 outside of articles and in one without a number. */
    int articleId;
    /** Empty where the file itself is meant. */
    QString element;
    /** Empty where the element is meant. */
    QString attribute;
    /** What is wrong and what the application does with it. */
    QString message;
};
