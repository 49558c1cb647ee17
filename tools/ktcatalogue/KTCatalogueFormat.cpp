#include "KTCatalogueFormat.h"

#include <algorithm>
#include <iterator>

namespace {

using Kind = KTElementKind;
using Type = KTAttributeType;
using Role = KTAttributeRole;

constexpr KTElementRow ELEMENTS[] = {
    {Kind::Catalogue,   "catalogue",   Kind::Unread,      true },
    {Kind::Article,     "article",     Kind::Catalogue,   false},
    {Kind::Forms,       "forms",       Kind::Article,     true },
    {Kind::Form,        "form",        Kind::Forms,       false},
    {Kind::Composition, "composition", Kind::Article,     true },
    {Kind::Spine,       "spine",       Kind::Composition, true },
    {Kind::Page,        "page",        Kind::Article,     false},
    {Kind::Barcodes,    "barcodes",    Kind::Article,     true },
    {Kind::Barcode,     "barcode",     Kind::Barcodes,    false},
};

// The page counts' replacements depend on each other, so the page counts that come out are named instead.
constexpr KTAttributeRow ATTRIBUTES[] = {
    {Kind::Article,     "art_id",             Type::Integer,  Role::ArtId,            "no number, so that 'id' counts"     },
    {Kind::Article,     "id",                 Type::Integer,  Role::Id,               "no number"                          },
    {Kind::Article,     "name",               Type::Text,     Role::Other,            ""                                   },
    {Kind::Article,     "article_class",      Type::Keywords, Role::ArticleClass,     ""                                   },
    {Kind::Article,     "arrangement",        Type::Keywords, Role::Other,            ""                                   },
    {Kind::Article,     "space_magnitude",    Type::Keywords, Role::Other,            ""                                   },
    {Kind::Article,     "orientation",        Type::Keywords, Role::Other,            ""                                   },
    {Kind::Article,     "cover_type",         Type::Keywords, Role::Other,            ""                                   },
    {Kind::Article,     "binding",            Type::Keywords, Role::Other,            ""                                   },
    {Kind::Article,     "paper",              Type::Keywords, Role::Other,            ""                                   },
    {Kind::Article,     "photo_paper",        Type::Keywords, Role::Other,            ""                                   },
    {Kind::Article,     "material",           Type::Keywords, Role::Other,            ""                                   },
    {Kind::Article,     "content_type",       Type::Keywords, Role::Other,            ""                                   },
    {Kind::Article,     "spot_colors",        Type::Keywords, Role::Other,            ""                                   },
    {Kind::Article,     "productname",        Type::Text,     Role::ProductName,      ""                                   },
    {Kind::Article,     "price_class",        Type::Text,     Role::PriceClass,       ""                                   },
    {Kind::Article,     "shipping_group",     Type::Integer,  Role::ShippingGroup,    "no shipping group (-1)"             },
    {Kind::Article,     "pages",              Type::Integer,  Role::Pages,            ""                                   },
    {Kind::Article,     "max_pages",          Type::Integer,  Role::MaxPages,         ""                                   },
    {Kind::Article,     "page_step",          Type::Integer,  Role::PageStep,         ""                                   },
    {Kind::Article,     "pieces",             Type::Integer,  Role::Pieces,           ""                                   },
    {Kind::Form,        "key",                Type::Text,     Role::Key,              ""                                   },
    {Kind::Form,        "value",              Type::Text,     Role::Value,            ""                                   },
    {Kind::Form,        "key_name",           Type::Text,     Role::Other,            ""                                   },
    {Kind::Form,        "value_name",         Type::Text,     Role::Other,            ""                                   },
    {Kind::Form,        "editor_name",        Type::Text,     Role::Other,            ""                                   },
    {Kind::Form,        "name",               Type::Text,     Role::Other,            ""                                   },
    {Kind::Form,        "preview",            Type::Text,     Role::Other,            ""                                   },
    {Kind::Form,        "color",              Type::Color,    Role::Other,            "no colour: the option has no swatch"},
    {Kind::Form,        "preselected",        Type::Boolean,  Role::Preselected,      "false"                              },
    {Kind::Form,        "not_accountable",    Type::Boolean,  Role::Other,            "false: the option is charged"       },
    {Kind::Composition, "units",              Type::Unit,     Role::Units,            ""                                   },
    {Kind::Spine,       "packages_per_block", Type::Integer,  Role::PackagesPerBlock, "0: the spine never grows"           },
    {Kind::Spine,       "base_width",         Type::Number,   Role::Other,            "0"                                  },
    {Kind::Spine,       "block_width",        Type::Number,   Role::Other,            "0"                                  },
    {Kind::Spine,       "additional_width",   Type::Number,   Role::Other,            "0"                                  },
    {Kind::Page,        "type",               Type::Keywords, Role::Other,            ""                                   },
    {Kind::Page,        "alignment",          Type::Keywords, Role::Other,            ""                                   },
    {Kind::Page,        "units",              Type::Unit,     Role::Units,            ""                                   },
    {Kind::Page,        "width",              Type::Number,   Role::Width,            "0"                                  },
    {Kind::Page,        "height",             Type::Number,   Role::Height,           "0"                                  },
    {Kind::Page,        "bleed_top",          Type::Number,   Role::Other,            "0"                                  },
    {Kind::Page,        "bleed_bottom",       Type::Number,   Role::Other,            "0"                                  },
    {Kind::Page,        "bleed_left",         Type::Number,   Role::Other,            "0"                                  },
    {Kind::Page,        "bleed_right",        Type::Number,   Role::Other,            "0"                                  },
    {Kind::Page,        "slipcase_width",     Type::Number,   Role::Other,            "0"                                  },
    {Kind::Page,        "slipcase_height",    Type::Number,   Role::Other,            "0"                                  },
    {Kind::Barcodes,    "units",              Type::Unit,     Role::Units,            ""                                   },
    {Kind::Barcode,     "pageNr",             Type::Integer,  Role::PageNr,           "0"                                  },
    {Kind::Barcode,     "position_x",         Type::Number,   Role::PositionX,        "1"                                  },
    {Kind::Barcode,     "position_y",         Type::Number,   Role::PositionY,        "1"                                  },
    {Kind::Barcode,     "width",              Type::Number,   Role::Width,            "1"                                  },
    {Kind::Barcode,     "height",             Type::Number,   Role::Height,           "1"                                  },
    {Kind::Barcode,     "image",              Type::Text,     Role::Image,            ""                                   },
};

} // namespace

const KTCatalogueFormat &KTCatalogueFormat::instance()
{
    static const KTCatalogueFormat myInstance;
    return myInstance;
}

KTCatalogueFormat::KTCatalogueFormat()
    : myAttributes(std::begin(ATTRIBUTES), std::end(ATTRIBUTES))
    , myIndex(static_cast<int>(Kind::Form) + 1)
    , myRoleNames(static_cast<int>(Role::Other) + 1)
{
    for (const KTAttributeRow &row : ATTRIBUTES) {
        myNames.append(QString::fromLatin1(row.name));
        myRoleNames[static_cast<int>(row.role)] = myNames.constLast();
        myIndex[static_cast<int>(row.element)].insert(QStringView(myNames.constLast()), &row);
    }
}

const KTElementRow *KTCatalogueFormat::element(Kind parent, QStringView name) const
{
    for (const KTElementRow &row : ELEMENTS) {
        if (row.parent == parent && name == QLatin1String(row.name))
            return &row;
    }
    return nullptr;
}

QString KTCatalogueFormat::elementName(Kind kind) const
{
    const auto *const row
        = std::find_if(std::begin(ELEMENTS), std::end(ELEMENTS),
                       [kind](const KTElementRow &element) { return element.kind == kind; });
    return row == std::end(ELEMENTS) ? QString() : QString::fromLatin1(row->name);
}

QString KTCatalogueFormat::parentName(const QString &name) const
{
    const auto *const row
        = std::find_if(std::begin(ELEMENTS), std::end(ELEMENTS),
                       [&name](const KTElementRow &element) { return name == QLatin1String(element.name); });
    return row == std::end(ELEMENTS) ? QString() : elementName(row->parent);
}

const KTAttributeRow *KTCatalogueFormat::attribute(Kind element, QStringView name) const
{
    return myIndex.at(static_cast<int>(element)).value(name, nullptr);
}

QStringList KTCatalogueFormat::elementNames() const
{
    QStringList names;
    for (const KTElementRow &row : ELEMENTS)
        names.append(QString::fromLatin1(row.name));
    return names;
}

QStringList KTCatalogueFormat::attributeNames(Kind element) const
{
    QStringList names;
    for (const KTAttributeRow &row : ATTRIBUTES) {
        if (row.element == element)
            names.append(QString::fromLatin1(row.name));
    }
    return names;
}
