#include "KTPriceClassSet.h"

#include <KTSpotColor.h>
#include <KTStringLiteral.h>

#include <QDebug>
#include <QStringList>

#include <algorithm>

namespace {

constexpr KTStringLiteral FRAME_PASSEPARTOUT = "PAS1";
constexpr KTStringLiteral FRAME_GLASS = "GLP1";
constexpr KTStringLiteral FRAME_LAMINATION = "LAM1";

constexpr QChar LIST_SEPARATOR = u',';
constexpr QChar ROW_SEPARATOR = u' ';

enum class Group {
    SpotColorGloss,
    SpotColorGoldSilver,
    SpotColorSilverInk,
    BookGiftBoxes,
    CalendarGiftBoxes,
    Maps,
    Envelopes,
    CalendarStrips,
    PosterWoodenStrips,
    CalendarStands,
    MattCovers,
    Flyleaves,
    Designs,
    Wallholders,
    Videos,
};

struct GroupRow
{
    Group group;
    const char *codes;
};

// The gaps in the numbers are the catalogue's own (FOP27, FOP28, FOP506, WH3, WH13 to WH15, VDO10 to VDO50),
// and silver ink is a group that nothing is billed for.
constexpr GroupRow GROUPS[] = {
    {Group::SpotColorGloss,      "FOP2 FOP4 FOP6 FOP8 FOP10 FOP12 FOP14 FOP16 FOP18 FOP20 FOP22 FOP24 FOP38" },
    {Group::SpotColorGoldSilver,
     "FOP1 FOP3 FOP5 FOP7 FOP9 FOP11 FOP13 FOP15 FOP17 FOP19 FOP21 FOP23 FOP25 FOP26 FOP37 "
     "FOP501 FOP502 FOP503 FOP504 FOP505 FOP507 FOP508 FOP509 FOP551"                                        },
    {Group::SpotColorSilverInk,  ""                                                                          },
    {Group::BookGiftBoxes,       "GBT4 GBT5 GBT6 GBT7"                                                       },
    {Group::CalendarGiftBoxes,   "GPT2 GPT4"                                                                 },
    {Group::Maps,                "MAP1 MAP51"                                                                },
    {Group::Envelopes,           "ECC1 ECC2"                                                                 },
    {Group::CalendarStrips,      "CRL1 CRL2 CRL3"                                                            },
    {Group::PosterWoodenStrips,  "PHA1 PHA2 PHA3 PHA4"                                                       },
    {Group::CalendarStands,      "WST1"                                                                      },
    {Group::MattCovers,          "FOP29 FOP30 FOP31 FOP32 FOP33 FOP34 FOP35 FOP36"                           },
    {Group::Flyleaves,           "FLF1 FLF2 FLF3 FLF4 FLF5 FLF6 FLF7"                                        },
    {Group::Designs,             "91 92 93 94 95 96 premium_design"                                          },
    {Group::Wallholders,         "WH2 WH4 WH5 WH6 WH7 WH8 WH9 WH10 WH11 WH12 WH202 WH212 WH16 WH17 WH18 WH19"},
    {Group::Videos,              "VDO1 VDO2 VDO3 VDO4 VDO5 VDO6 VDO7 VDO8 VDO9 VDO51 VDO52 VDO53 VDO54 VDO55"},
};

KTPriceClassSet createGroup(std::initializer_list<Group> members)
{
    KTPriceClassSet priceClasses;
    for (const GroupRow &row : GROUPS) {
        if (std::find(members.begin(), members.end(), row.group) == members.end())
            continue;
        for (const QString &code : QString::fromLatin1(row.codes).split(ROW_SEPARATOR, Qt::SkipEmptyParts))
            priceClasses.insert(code);
    }
    return priceClasses;
}

/** The groups as one, built by the thread that asks first; never freed, as destructors may ask at the end. */
template <Group... MEMBERS>
const KTPriceClassSet &theGroup()
{
    static const auto *const myGroup = new KTPriceClassSet(createGroup({MEMBERS...}));
    return *myGroup;
}

QStringList codesOf(const KTPriceClassSet &priceClasses)
{
    QStringList codes;
    for (const KTPriceClass &priceClass : priceClasses)
        codes.append(priceClass.toString());
    return codes;
}

} // namespace

KTPriceClassSet::KTPriceClassSet(const KTPriceClass &priceClass)
{
    insert(priceClass);
}

KTPriceClassSet::KTPriceClassSet(std::initializer_list<QString> codes)
{
    for (const QString &code : codes)
        insert(code);
}

KTPriceClassSet::~KTPriceClassSet() = default;

KTPriceClassSet KTPriceClassSet::spotColorGloss()
{
    return theGroup<Group::SpotColorGloss>();
}

KTPriceClassSet KTPriceClassSet::spotColorGoldSilver()
{
    return theGroup<Group::SpotColorGoldSilver>();
}

KTPriceClassSet KTPriceClassSet::spotColorSilverInk()
{
    return theGroup<Group::SpotColorSilverInk>();
}

KTPriceClassSet KTPriceClassSet::spotColorAll()
{
    return theGroup<Group::SpotColorGloss, Group::SpotColorGoldSilver, Group::SpotColorSilverInk>();
}

KTPriceClassSet KTPriceClassSet::spotColorPriceClasses(const KTSpotColor &color)
{
    switch (color.value()) {
    case KTSpotColorGloss:
        return spotColorGloss();
    case KTSpotColorGold:
    case KTSpotColorSilver:
    case KTSpotColorRoseGold:
        return spotColorGoldSilver();
    case KTSpotColorSilverInk:
        return spotColorSilverInk();
    }
    return KTPriceClassSet();
}

KTPriceClassSet KTPriceClassSet::bookGiftBoxes()
{
    return theGroup<Group::BookGiftBoxes>();
}

KTPriceClassSet KTPriceClassSet::calendarGiftBoxes()
{
    return theGroup<Group::CalendarGiftBoxes>();
}

KTPriceClass KTPriceClassSet::framePassepartout()
{
    return KTPriceClass(FRAME_PASSEPARTOUT);
}

KTPriceClass KTPriceClassSet::frameGlass()
{
    return KTPriceClass(FRAME_GLASS);
}

KTPriceClass KTPriceClassSet::frameLamination()
{
    return KTPriceClass(FRAME_LAMINATION);
}

KTPriceClassSet KTPriceClassSet::frameGlasses()
{
    static const auto *const myGroup = new KTPriceClassSet {FRAME_GLASS, FRAME_LAMINATION};
    return *myGroup;
}

KTPriceClassSet KTPriceClassSet::calendarStrips()
{
    return theGroup<Group::CalendarStrips>();
}

KTPriceClassSet KTPriceClassSet::posterWoddenStrips()
{
    return theGroup<Group::PosterWoodenStrips>();
}

KTPriceClassSet KTPriceClassSet::calendarStandPriceClasses()
{
    return theGroup<Group::CalendarStands>();
}

KTPriceClassSet KTPriceClassSet::calendarFrameClasses()
{
    return theGroup<Group::CalendarStrips, Group::CalendarStands>();
}

KTPriceClassSet KTPriceClassSet::wallholderPriceClasses()
{
    return theGroup<Group::Wallholders>();
}

KTPriceClassSet KTPriceClassSet::maps()
{
    return theGroup<Group::Maps>();
}

KTPriceClassSet KTPriceClassSet::envelops()
{
    return theGroup<Group::Envelopes>();
}

KTPriceClassSet KTPriceClassSet::mattCoverPriceClasses()
{
    return theGroup<Group::MattCovers>();
}

KTPriceClassSet KTPriceClassSet::flyleafPriceClasses()
{
    return theGroup<Group::Flyleaves>();
}

KTPriceClassSet KTPriceClassSet::designPriceClasses()
{
    return theGroup<Group::Designs>();
}

KTPriceClassSet KTPriceClassSet::videoNames()
{
    return theGroup<Group::Videos>();
}

QString KTPriceClassSet::toString() const
{
    return codesOf(*this).join(LIST_SEPARATOR);
}

QDebug operator<<(QDebug stream, const KTPriceClassSet &priceClasses)
{
    for (const QString &code : codesOf(priceClasses))
        stream << code;
    return stream;
}
