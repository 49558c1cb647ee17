#include "KTTestNeighbour.h"

const void *KTTestNeighbour::singleton()
{
    return KTTestSingleton::instance();
}

const void *KTTestNeighbour::spotColorTable()
{
    return KTSpotColor().enumToStringTable();
}
