#pragma once

#include "ktcatalogue_export.h"

#include <QList>
#include <QString>
#include <QStringList>
#include <QVector>

#include <variant>

class KTArticle;

/**
 * What there is to say about an article: the one walk over it that texts, JSON, pages and comparisons are
 * made from.
 *
 * Labels, values and remarks are in English, except for names that the catalogue or the library's classes
 * give; they may hold any character of the catalogue.
 */
struct KTCATALOGUE_EXPORT KTArticleDescription
{
    /** How the facts of a section's rows belong together. */
    enum class Shape {
        /** They are members of the article itself. */
        Members,
        /** They are members of one thing. */
        Object,
        /** Each row is one of several things. */
        List,
        /** The same, and the things have names, which follow the section's id and a "." in their rows' ids.
         */
        Map,
    };

    /** Something that programs read: a text, a number, several texts, or several lengths in millimetres. */
    struct Fact
    {
        using Value = std::variant<QString, int, double, bool, QStringList, QVector<double>>;

        QString name;
        Value value;
    };

    /** Something to say about the article: a line for people, facts for programs. */
    struct Row
    {
        /**
         * Names the thing in every catalogue that has it, such as "options.alcolor.red"; of several that
         * would have the same name the second one ends in "#2". Empty for a row that goes on with the one
         * before.
         */
        QString id;
        /** Empty for a row that goes on with the one before. */
        QString label;
        QString value;
        QString remark;
        /** The same for programs. The id of a fact is that of the row, a ".", and its name. */
        QVector<Fact> facts;
    };

    /** Rows that belong together. */
    struct Section
    {
        /** Where programs find the facts, unless they are the article's: "pages", "pageCounts.samples". */
        QString id;
        QString label;
        Shape shape;
        QVector<Row> rows;
    };

    /**
     * The spine's width is told for what becomes of each of the page counts; without any, for the least, a
     * middle and the highest one.
     */
    explicit KTArticleDescription(const KTArticle &article, const QList<int> &pageCounts = {});

    /** In the order in which a person reads them; sections without rows are there, too. */
    QVector<Section> sections;
};
