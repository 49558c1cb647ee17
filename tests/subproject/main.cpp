#include <KTDistance.h>

int main()
{
    return KTDistance(1.0, KTDistanceUnitInch).value(KTDistanceUnitMillimeter) > 25.0 ? 0 : 1;
}
