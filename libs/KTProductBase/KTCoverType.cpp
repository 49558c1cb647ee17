#include "KTCoverType.h"

#include <KTFactRow.h>
#include <KTKeywordRow.h>

#include <QDebug>

#include <iterator>

namespace {

// The catalogues have grown: "calender", upper case for books and calendars, and a hyphen in one are right.
constexpr KTKeywordRow<KTCoverTypeEnum> KEYWORDS[] = {
    {"HARDCOVER",                 KTCoverTypeHardcover              },
    {"HARD",                      KTCoverTypeHardcover              },
    {"SOFTCOVER",                 KTCoverTypeSoftcover              },
    {"SOFT",                      KTCoverTypeSoftcover              },
    {"CALENDAR_SIMPLEX",          KTCoverTypeCalendarSimplex        },
    {"wall_calendar",             KTCoverTypeCalendarSimplex        },
    {"CALENDAR_DUPLEX",           KTCoverTypeCalendarDuplex         },
    {"table_calendar",            KTCoverTypeCalendarDuplex         },
    {"CALENDAR_ONE_PAGE",         KTCoverTypeCalendarOnePage        },
    {"CALENDAR_ANNUAL_SIMPLEX",   KTCoverTypeCalendarOnePage        },
    {"CALENDAR_ANNUAL_DUPLEX",    KTCoverTypeCalendarAnnualDuplex   },
    {"GIFT",                      KTCoverTypeGift                   },
    {"BOOKLET",                   KTCoverTypeBooklet                },
    {"tacked",                    KTCoverTypeBooklet                },
    {"CROMOLINEN",                KTCoverTypeCromolinen             },
    {"CROMO",                     KTCoverTypeCromolinen             },
    {"LEATHER",                   KTCoverTypeLeather                },
    {"AGENDA",                    KTCoverTypeAgenda                 },
    {"acryl_glas",                KTCoverTypeAcrylGlas              },
    {"canvas",                    KTCoverTypeCanvas                 },
    {"alu_dibond",                KTCoverTypeAluDibond              },
    {"hard_foam",                 KTCoverTypeHardFoam               },
    {"decoration",                KTCoverTypeDecoration             },
    {"gallery_print",             KTCoverTypeGalleryPrint           },
    {"calender_advent_empty",     KTCoverTypeCalendarAdventEmpty    },
    {"calender_advent_chocolate", KTCoverTypeCalendarAdventChocolate},
    {"calender_advent_photo",     KTCoverTypeCalendarAdventPhoto    },
    {"ceramics",                  KTCoverTypeCeramics               },
    {"games",                     KTCoverTypeGames                  },
    {"office",                    KTCoverTypeOffice                 },
    {"poster_decoration",         KTCoverTypePosterDecoration       },
    {"poster_premium",            KTCoverTypePosterPremium          },
    {"poster_self_adhesive",      KTCoverTypePosterSelfAdhesive     },
    {"poster_standard",           KTCoverTypePosterStandard         },
    {"poster_xxl",                KTCoverTypePosterXXL              },
    {"textiles",                  KTCoverTypeTextiles               },
    {"wood",                      KTCoverTypeWood                   },
    {"set",                       KTCoverTypeSet                    },
    {"wire-o",                    KTCoverTypeWireO                  },
};
static_assert(KTKeywordRows::bits(KEYWORDS) == 0xffffffff, "every type has a keyword");

constexpr KTTextRow<KTCoverTypeEnum> NAMES[] = {
    {KTCoverTypeHardcover,            QT_TRANSLATE_NOOP("KTBinding", "Hardcover")               },
    {KTCoverTypeSoftcover,            QT_TRANSLATE_NOOP("KTBinding", "Softcover")               },
    {KTCoverTypeCalendarSimplex,      QT_TRANSLATE_NOOP("KTBinding", "Kalender einseitig")      },
    {KTCoverTypeCalendarDuplex,       QT_TRANSLATE_NOOP("KTBinding", "Kalender doppelseitig")   },
    {KTCoverTypeCalendarOnePage,      QT_TRANSLATE_NOOP("KTBinding", "1-Seiten-Kalender")       },
    {KTCoverTypeCalendarAnnualDuplex, QT_TRANSLATE_NOOP("KTBinding", "2-Seiten-Jahresplaner")   },
    {KTCoverTypeBooklet,              QT_TRANSLATE_NOOP("KTBinding", "Heft")                    },
    {KTCoverTypeCromolinen,           QT_TRANSLATE_NOOP("KTBinding", "Leinen")                  },
    {KTCoverTypeLeather,              QT_TRANSLATE_NOOP("KTBinding", "Leder")                   },
    {KTCoverTypeWireO,                QT_TRANSLATE_NOOP("KTBinding", "Kunststoff-Spiralbindung")},
};

// Their name is empty. Ceramics are left out on purpose, and so have the name of an unknown type.
constexpr KTCoverTypeEnum NAMELESS[] = {
    KTCoverTypeGift,
    KTCoverTypeAgenda,
    KTCoverTypeAcrylGlas,
    KTCoverTypeCanvas,
    KTCoverTypeAluDibond,
    KTCoverTypeHardFoam,
    KTCoverTypeDecoration,
    KTCoverTypeGalleryPrint,
    KTCoverTypeCalendarAdventEmpty,
    KTCoverTypeCalendarAdventChocolate,
    KTCoverTypeCalendarAdventPhoto,
    KTCoverTypeGames,
    KTCoverTypeOffice,
    KTCoverTypePosterDecoration,
    KTCoverTypePosterPremium,
    KTCoverTypePosterSelfAdhesive,
    KTCoverTypePosterStandard,
    KTCoverTypePosterXXL,
    KTCoverTypeTextiles,
    KTCoverTypeWood,
    KTCoverTypeSet,
};
static_assert(std::size(NAMES) + std::size(NAMELESS) == 31, "every type but ceramics");

// The formatter cannot align rows of several lines.
// clang-format off

// Their wording, odd capitals included, is the key under which the translations are found.
constexpr KTTextRow<KTCoverTypeEnum> TOOL_TIPS[] = {
    {KTCoverTypeSoftcover, QT_TRANSLATE_NOOP("KTBinding",
        "Individuell gestaltbarer elastischer Einband mit Klebebindung.\n"
        "Das Cover ist vollständig gestaltbar.")},
    {KTCoverTypeHardcover, QT_TRANSLATE_NOOP("KTBinding",
        "Stabiler und individuell gestaltbarer Festeinband mit Klebebindung.\n"
        "Das Cover ist vollständig gestaltbar.")},
    {KTCoverTypeCalendarSimplex, QT_TRANSLATE_NOOP("KTBinding",
        "Einseitig bedruckte Kalender eignen sich besonders zum Aufhängen,\n"
        "da die leere Seite zur Wand zeigt, und daher nicht gesehen werden kann.")},
    {KTCoverTypeCalendarDuplex, QT_TRANSLATE_NOOP("KTBinding",
        "Doppelseitig bedruckte Kalender eignen sich besonders zum auf-den-Tisch-Legen.")},
    {KTCoverTypeCalendarOnePage, QT_TRANSLATE_NOOP("KTBinding",
        "Ein großformatiger Einseitig bedruckter Jahreskalender gibt übersicht über das gesamte Kalenderjahr.\n"
        "Alles auf einen Blick.")},
    {KTCoverTypeCalendarAnnualDuplex, QT_TRANSLATE_NOOP("KTBinding",
        "Ein großformatiger Beidseitig bedruckter Jahreskalender gibt übersicht über das gesamte Kalenderjahr.\n"
        "Alles auf einen Blick.")},
    {KTCoverTypeBooklet, QT_TRANSLATE_NOOP("KTBinding",
        "Individuell gestaltbarer flexibler Einband mit Rückstichbindung.")},
};

// Followed, on a line of its own, by what they have in common.
constexpr KTTextRow<KTCoverTypeEnum> FINISHED_COVER_TOOL_TIPS[] = {
    {KTCoverTypeCromolinen, QT_TRANSLATE_NOOP("KTBinding",
        "Der hochwertige Leinen-Einband ist in verschiedenen Farben erhältlich.")},
    {KTCoverTypeLeather, QT_TRANSLATE_NOOP("KTBinding",
        "Der hochwertige Leder-Einband ist in verschiedenen Farben erhältlich.")},
};

// clang-format on

constexpr auto FULL_COVERS = KTCoverTypeHardcover | KTCoverTypeSoftcover | KTCoverTypeBooklet;

// On purpose the annual planner is among them, though both its sides are printed; so are gifts and agendas.
constexpr auto SIMPLEX_COVERS = KTCoverTypeCalendarSimplex | KTCoverTypeCalendarOnePage
    | KTCoverTypeCalendarAnnualDuplex | KTCoverTypeGift | KTCoverTypeAgenda;

QString unknownName()
{
    return QCoreApplication::translate("KTBinding", "unbekannter Bindungstyp");
}

} // namespace

KTCoverType::KTCoverType()
    : KTCoverType(static_cast<KTCoverTypeEnum>(0))
{
}

KTCoverType::KTCoverType(KTCoverTypeEnum value)
    : KTEnumWrapper(value)
{
}

KTCoverType::KTCoverType(const QString &text)
    : KTCoverType()
{
    setValue(text);
}

KTCoverType KTCoverType::createFromHumanReadable(const QString &name)
{
    // Latin-1, unlike elsewhere: callers hand over source texts, and all of these are ASCII.
    return bindingNames()->keyOf(QCoreApplication::translate("KTBinding", name.toLatin1().constData()));
}

KTLookUpTable<KTCoverTypeEnum, QString> *KTCoverType::initCoverNames()
{
    auto *const table = KTFactRows::createTextTable<KTCoverTypeEnum>("KTBinding", NAMES);
    for (const KTCoverTypeEnum value : NAMELESS)
        table->map.insert(value, QCoreApplication::translate("KTBinding", ""));
    table->defaultValue = unknownName();
    return table;
}

KTLookUpTable<KTCoverTypeEnum, QString> *KTCoverType::bindingNames()
{
    static auto *const table = initCoverNames();
    return table;
}

KTLookUpTable<KTCoverTypeEnum, QString> *KTCoverType::initTooltips()
{
    auto *const table = KTFactRows::createTextTable<KTCoverTypeEnum>("KTBinding", TOOL_TIPS);
    const QString twoLines = QCoreApplication::translate("KTBinding", "%1\n%2");
    const QString finishing = QCoreApplication::translate(
        "KTBinding", "Das Cover kann nur mit veredelten Elementen gestaltet werden.");
    for (const KTTextRow<KTCoverTypeEnum> &row : FINISHED_COVER_TOOL_TIPS) {
        const QString cover = QCoreApplication::translate("KTBinding", row.text);
        table->map.insert(row.value, twoLines.arg(cover, finishing));
    }
    table->defaultValue = unknownName();
    return table;
}

KTLookUpTable<KTCoverTypeEnum, QString> *KTCoverType::bindingToolTips()
{
    static auto *const table = initTooltips();
    return table;
}

QString KTCoverType::humanReadableName() const
{
    return bindingNames()->valueOf(value());
}

QString KTCoverType::toolTip() const
{
    return bindingToolTips()->valueOf(value());
}

bool KTCoverType::isFullCover() const
{
    return matches(FULL_COVERS);
}

bool KTCoverType::isSimplex() const
{
    return matches(SIMPLEX_COVERS);
}

void KTCoverType::fillTable(KTEnumToStringTable<KTCoverTypeEnum> *table) const
{
    KTKeywordRows::insert(table, KEYWORDS);
}

QDebug operator<<(QDebug stream, const KTCoverType &coverType)
{
    return stream << "KTCoverType:" << coverType.debugText();
}
