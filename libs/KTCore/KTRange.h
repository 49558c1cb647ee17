#pragma once

#include <QtGlobal>

#include <type_traits>

/** A range of whole numbers, both ends inclusive; [0, 0] stands for "nothing yet", too. */
template <typename T>
class Q_DECL_EXPORT KTRange
{
    static_assert(std::is_integral_v<T> && sizeof(T) < sizeof(qint64), "sums are computed in 64 bits");

public:
    /** [0, 0]. */
    KTRange() = default;
    KTRange(T min, T max)
        : myMin(min)
        , myMax(max)
    {
    }
    KTRange(const KTRange &other) = default;
    KTRange(KTRange &&other) noexcept = default;
    KTRange &operator=(const KTRange &other) = default;
    KTRange &operator=(KTRange &&other) noexcept = default;
    virtual ~KTRange() = default;

    virtual bool operator==(const KTRange &other) const
    {
        return myMin == other.myMin && myMax == other.myMax;
    }
    virtual bool operator!=(const KTRange &other) const { return !(*this == other); }
    /** By minimum, then maximum; the invalid ranges come last and are equivalent to each other. */
    virtual bool operator<(const KTRange &other) const;
    /**
     * Moves the nearer end so that the value is contained, and returns the value. From [0, 0] the range
     * becomes the value alone.
     */
    virtual T expandTo(const T &value);
    /** The middle, truncated toward zero. */
    virtual T center() const { return static_cast<T>((qint64(myMin) + myMax) / 2); }
    /** True when the minimum is not above the maximum. */
    virtual bool isValid() const { return myMax >= myMin; }
    virtual bool contains(const T &value) const { return myMin <= value && value <= myMax; }
    /** True when both ends of the other range are contained. */
    virtual bool contains(const KTRange &other) const
    {
        return contains(other.myMin) && contains(other.myMax);
    }
    /** True when an end of either range is contained in the other. */
    virtual bool intersects(const KTRange &other) const
    {
        return contains(other.myMin) || contains(other.myMax) || other.contains(myMin)
            || other.contains(myMax);
    }

    T min() const { return myMin; }
    T max() const { return myMax; }

private:
    T myMin = 0;
    T myMax = 0;
};

template <typename T>
bool KTRange<T>::operator<(const KTRange &other) const
{
    if (!isValid() || !other.isValid())
        return isValid();
    return myMin != other.myMin ? myMin < other.myMin : myMax < other.myMax;
}

template <typename T>
T KTRange<T>::expandTo(const T &value)
{
    if (myMin == 0 && myMax == 0)
        myMin = myMax = value;
    else if (value > myMax)
        myMax = value;
    else if (value < myMin)
        myMin = value;
    return value;
}
