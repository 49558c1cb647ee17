#pragma once

#include "KTExitCode.h"

#include <QCommandLineOption>
#include <QCommandLineParser>
#include <QStringList>

#include <optional>

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
    QString helpText() const;

    QString myCommand;
    Files myFiles;
    QStringList myFormats;
    QCommandLineParser myParser;
};
