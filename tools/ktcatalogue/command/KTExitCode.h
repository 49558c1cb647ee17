#pragma once

/** How the program ends; the numbers are part of its interface. */
enum KTExitCode : int {
    KTExitSuccess = 0,
    /** The catalogue has no answer to the question. */
    KTExitUnanswerable = 1,
    /** Something is wrong with a catalogue. */
    KTExitFindings = 1,
    /** A file cannot be read, or is no catalogue. */
    KTExitUnreadable = 2,
    /** A file, or standard output, cannot be written. */
    KTExitUnwritable = 2,
    KTExitUsage = 64,
};
