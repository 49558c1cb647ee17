#include <KTProductBase>

/** Uses each library that the one header stands for. */
bool hasEveryLibrary()
{
    return sizeof(KTKeywordMap<QString, int>) > 0 && KTDistance() < KTDistance(1.0, KTDistanceUnitInch)
        && KTXMLParser::parseInt(QStringLiteral("30")) == 30
        && KTCoverType(QStringLiteral("booklet")) == KTCoverTypeBooklet;
}
