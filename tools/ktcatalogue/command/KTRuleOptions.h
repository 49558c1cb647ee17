#pragma once

#include "KTExitCode.h"

#include <QString>
#include <QVector>

#include <optional>

class QCommandLineParser;

/** The options --ignore, --list-rules and --explain, and others that name rules, for one table of rules. */
class KTRuleOptions
{
public:
    static const QString IGNORE;
    static const QString LIST_RULES;
    static const QString EXPLAIN;

    /** A rule in words; its place among the rules is its number. */
    struct Rule
    {
        QString name;
        /** How much a finding of it weighs. */
        QString weight;
        QString summary;
        QString explanation;
    };

    explicit KTRuleOptions(const QVector<Rule> &rules);

    /** What the list or the explanation that is asked for came to; nothing when neither is. */
    std::optional<KTExitCode> answer(const QCommandLineParser &parser) const;
    /** The numbers of the rules that the option's values name; one that names none is wrong usage, reported.
     */
    std::optional<QVector<int>> numbers(const QCommandLineParser &parser, const QString &option) const;

private:
    std::optional<int> find(const QString &name) const;
    QString list() const;

    QVector<Rule> myRules;
};
