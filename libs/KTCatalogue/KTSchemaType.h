#pragma once

#include "KTCatalogueFormat.h"

#include <QString>
#include <QStringList>
#include <QVector>

#include <array>

/** A text that an editor offers. */
struct KTSchemaValue
{
    QString text;
    /** What it stands for, in words. */
    QString documentation;
};

/** What a schema says of the texts that an attribute can have. Not part of the library's interface. */
struct KTSchemaType
{
    /** A type of XML Schema with bounds, if any; texts that it takes are among those of this one. */
    struct Base
    {
        const char *name = nullptr;
        const char *minimum = nullptr;
        const char *maximum = nullptr;
    };

    QString name;
    QString documentation;
    Base base;
    QVector<KTSchemaValue> values;
    /** Regular expressions of XML Schema for further texts: each of them is one that matches all of these. */
    QStringList patterns;
    /** Whether all other texts are taken as well. */
    bool isOpen = false;

    /** The types of all attributes but those that take any text. */
    static QVector<KTSchemaType> all();
    /** Empty for an attribute that takes any text. */
    static QString nameOf(const KTAttributeRow &row);
};

/** What schemas say in words. */
namespace KTSchemaText {

/** What the file is, for those who open it. */
QString title();
QString ofElement(const KTElementRow &row);
/** Meaning, kind of value, default, and since when it is read. */
QString ofAttribute(const KTAttributeRow &row);
/** The language of all of these, as xml:lang says it. */
QString language();

} // namespace KTSchemaText
