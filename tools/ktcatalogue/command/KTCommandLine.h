#pragma once

#include "KTExitCode.h"

#include <QCommandLineOption>
#include <QCommandLineParser>
#include <QStringList>

#include <cstddef>
#include <optional>

/** An option of a sub-command, as a row of a table. */
struct KTOptionRow
{
    const QString &name;
    /** Empty for an option without a value. */
    const char *valueName;
    const char *defaultValue;
    /** Translated in the context KTToolText. */
    const char *description;
};

/** A function, because clang-format cannot line up rows of texts that take several lines. */
constexpr KTOptionRow optionRow(const QString &name, const char *valueName, const char *defaultValue,
                                const char *description)
{
    return {name, valueName, defaultValue, description};
}

/** The arguments of one sub-command, and its help with an example. */
class KTCommandLine
{
public:
    /** How many files are expected after the command. */
    enum class Files {
        None,
        One,
        Any,
    };

    KTCommandLine(const QString &command, const QString &description, const QString &example,
                  Files files = Files::One);

    template <std::size_t N>
    void addOptions(const KTOptionRow (&rows)[N])
    {
        for (const KTOptionRow &row : rows)
            addOption(row);
    }
    /** Adds --format with the values, of which the first is the default, and its short form --json. */
    void addFormats(const QStringList &formats);
    /** The format asked for; one that does not exist is reported as wrong usage. */
    std::optional<QString> format() const;

    QCommandLineParser &parser() { return myParser; }
    const QCommandLineParser &parser() const { return myParser; }

    /**
     * Parses what follows the program's name, the command included. An exit code means that there is nothing
     * left to do: help was printed, or wrong usage reported.
     */
    std::optional<KTExitCode> parse(const QStringList &arguments);
    /** The file given; "-" for standard input. */
    QString fileName() const;
    QStringList fileNames() const;
    /** The option's value as a number; when there is none, wrong usage is reported. */
    std::optional<int> number(const QCommandLineOption &option) const;
    /** Each of the option's values as a number; one that is none is reported as wrong usage. */
    std::optional<QList<int>> numbers(const QCommandLineOption &option) const;

    /** The option's last value as a number; one that is none, or too small, is reported as wrong usage. */
    static std::optional<int> number(const QCommandLineParser &parser, const QString &option, int minimum);

    /** Reports a value that the option does not have. */
    static KTExitCode failChoice(const QString &option, const QString &value, const QStringList &choices);
    KTExitCode failNoArticle(int articleId) const;
    /** The objection is a predicate: "has no page sizes". */
    KTExitCode failArticle(int articleId, const QString &objection) const;

private:
    void addOption(const KTOptionRow &row);
    QString helpText() const;

    QString myCommand;
    Files myFiles;
    QStringList myFormats;
    QCommandLineParser myParser;
};
