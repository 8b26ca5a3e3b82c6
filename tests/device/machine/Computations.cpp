// What compilers make of numbers, structures and calls: instructions of every group, and the compiler's own
// library.
#include "tests/device/machine/Computations.h"

namespace computations {

using Word = uint32_t;
using Wide = uint64_t;

// Numbers that no compiler can foresee, and what is left of the results.
class Series
{
    volatile Word state;
    Word sum = 17;

  public:
    explicit Series(Word seed) : state(seed) {}

    Word Next()
    {
        const Word next = state * 1664525 + 1013904223;
        state = next;
        return next ^ next >> 15;
    }
    Wide NextWide()
    {
        const Wide upper = Next();
        return upper << 32 | Next();
    }
    // Not all of them large.
    Word NextShort() { return Next() >> (Next() & 31); }
    void Add(Word result) { sum = (sum << 5 | sum >> 27) ^ result; }
    void AddWide(Wide result)
    {
        Add(static_cast<Word>(result));
        Add(static_cast<Word>(result >> 32));
    }
    Word Sum() const { return sum; }
};

static constexpr int rounds = 300;

static Word Divisions()
{
    Series series(1);
    for (int round = 0; round < rounds; round++) {
        const Word a = series.NextShort();
        const Word b = series.NextShort() | 1;
        series.Add(a / b);
        series.Add(a % b);
        const auto c = static_cast<int32_t>(series.Next());
        const auto d = static_cast<int32_t>(series.NextShort() >> 1) + 1;
        series.Add(static_cast<Word>(c / d));
        series.Add(static_cast<Word>(c % -d));
        series.Add(static_cast<Word>(c / 10 + c % 1000));
    }
    return series.Sum();
}

static Word WideArithmetic()
{
    Series series(2);
    for (int round = 0; round < rounds; round++) {
        const Wide a = series.NextWide();
        const Wide b = series.NextWide();
        series.AddWide(a + b);
        series.AddWide(a - b);
        series.AddWide(a * b);
        series.AddWide(0 - a);
        series.AddWide(
            static_cast<Wide>(static_cast<int64_t>(static_cast<int32_t>(a)) * static_cast<int32_t>(b)));
        series.Add((a < b) + 2 * (static_cast<int64_t>(a) < static_cast<int64_t>(b)) + 4 * (a == b));
    }
    return series.Sum();
}

static Word WideDivisions()
{
    Series series(3);
    for (int round = 0; round < rounds; round++) {
        const Wide a = series.NextWide() >> (series.Next() & 63);
        const Wide b = (series.NextWide() >> (series.Next() & 63)) | 1;
        series.AddWide(a / b);
        series.AddWide(a % b);
        const auto c = static_cast<int64_t>(series.NextWide());
        const auto d = static_cast<int64_t>(series.NextWide() >> 20) + 1;
        series.AddWide(static_cast<Wide>(c / -d));
        series.AddWide(static_cast<Wide>(c % d));
    }
    return series.Sum();
}

static Word Shifts()
{
    Series series(4);
    for (int round = 0; round < rounds; round++) {
        const Word a = series.Next();
        const Wide b = series.NextWide();
        const Word places = series.Next() & 31;
        const Word farther = series.Next() & 63;
        series.Add(a << places);
        series.Add(a >> places);
        series.Add(static_cast<Word>(static_cast<int32_t>(a) >> places));
        series.Add(a >> places | a << (32 - places) % 32);
        series.AddWide(b << farther);
        series.AddWide(b >> farther);
        series.AddWide(static_cast<Wide>(static_cast<int64_t>(b) >> farther));
    }
    return series.Sum();
}

// By the compiler's library: no such device calculates with fractions itself.
static Word Fractions()
{
    Series series(5);
    double total = 0;
    float single = 1;
    for (int round = 0; round < rounds; round++) {
        const double a = static_cast<double>(series.NextShort()) / 7;
        const double b = static_cast<double>(static_cast<int32_t>(series.Next())) + 0.5;
        total = total * 0.75 + a - b / (a + 1);
        single = single * 1.25f - static_cast<float>(a);
        if (single < -1e6f || single > 1e6f) {
            single = 1;
        }
        series.Add(static_cast<Word>(static_cast<int32_t>(total)));
        series.Add(static_cast<Word>(static_cast<int32_t>(single)));
        series.Add((a < b) + 2 * (total >= b) + 4 * (a == b));
    }
    return series.Sum();
}

static Word SmallNumbers()
{
    Series series(6);
    int8_t bytes[16] = {};
    uint16_t halves[16] = {};
    int16_t signedHalves[16] = {};
    for (int round = 0; round < rounds; round++) {
        const Word place = series.Next() & 15;
        bytes[place] = static_cast<int8_t>(bytes[place] + static_cast<int8_t>(series.Next()));
        halves[place ^ 1] = static_cast<uint16_t>(halves[place] * 31 + series.Next());
        signedHalves[place ^ 3] = static_cast<int16_t>(signedHalves[place] - bytes[place ^ 5]);
        series.Add(static_cast<Word>(bytes[place] * signedHalves[place]));
        series.Add(halves[15 - place]);
    }
    return series.Sum();
}

struct Record
{
    Word words[7];
    uint8_t byte;
    Word flag : 1;
    Word kind : 5;
    int32_t level : 11;
    Wide wide;
};

[[gnu::noinline]] static Record Changed(Record record, Word by)
{
    record.words[by % 7] += by;
    record.byte = static_cast<uint8_t>(record.byte + by);
    record.flag = by & 1;
    record.kind = (record.kind + by) & 31;
    record.level = by & 0x3FF;
    if ((by & 0x800) != 0) {
        record.level = -77;
    }
    record.wide += Wide{by} << 20;
    return record;
}

static Word Structures()
{
    Series series(7);
    Record records[3] = {};
    for (int round = 0; round < rounds; round++) {
        const Word by = series.Next();
        records[round % 3] = Changed(records[(round + 1) % 3], by);
        const Record& record = records[round % 3];
        series.Add(record.words[by % 7] + record.byte + record.flag + record.kind);
        series.Add(static_cast<Word>(record.level));
        series.AddWide(record.wide);
    }
    return series.Sum();
}

[[gnu::noinline]] static Word Chosen(Word kind, Word value)
{
    switch (kind) {
    case 0:
        return value + 1;
    case 1:
        return value * 3;
    case 2:
        return value ^ 0xFF00FF00;
    case 3:
        return value >> 3;
    case 4:
        return 0 - value;
    case 5:
        return value % 97;
    case 6:
        return ~value;
    default:
        return value;
    }
}

static Word Switches()
{
    Series series(8);
    for (int round = 0; round < rounds; round++) {
        const Word kind = series.Next() & 7;
        series.Add(Chosen(kind, series.Next()));
    }
    return series.Sum();
}

class Shape
{
  public:
    virtual Word Size(Word scale) const = 0;

  protected:
    ~Shape() = default;
};

class Square final : public Shape
{
    Word Size(Word scale) const override { return scale * scale; }
};

class Line final : public Shape
{
    Word Size(Word scale) const override { return scale * 10 + 1; }
};

static Word Calls()
{
    static Word (*volatile const functions[])(Word, Word) = {Chosen, [](Word a, Word b) { return a * b; },
                                                             [](Word a, Word b) { return a - b; }};
    Series series(9);
    const Square square;
    const Line line;
    const Shape* const volatile shapes[] = {&square, &line};
    for (int round = 0; round < rounds; round++) {
        const Word first = series.Next() & 7;
        series.Add(functions[round % 3](first, series.Next()));
        series.Add(shapes[series.Next() & 1]->Size(series.Next()));
    }
    return series.Sum();
}

[[gnu::noinline]] static Word Ways(Word steps, Series& series)
{
    Word places[6];
    for (Word& place : places) {
        place = series.Next();
    }
    if (steps == 0) {
        return places[series.Next() % 6];
    }
    const Word first = Ways(steps - 1, series);
    return first + places[steps % 6] * Ways(steps / 2, series);
}

static Word Recursion()
{
    Series series(10);
    return Ways(12, series);
}

static void Sort(int32_t* numbers, int count)
{
    for (int end = 1; end < count; end++) {
        const int32_t number = numbers[end];
        int place = end;
        for (; place > 0 && numbers[place - 1] > number; place--) {
            numbers[place] = numbers[place - 1];
        }
        numbers[place] = number;
    }
}

static Word Sorting()
{
    Series series(11);
    int32_t numbers[100];
    for (int32_t& number : numbers) {
        number = static_cast<int32_t>(series.Next());
    }
    Sort(numbers, 100);
    for (const int32_t number : numbers) {
        series.Add(static_cast<Word>(number));
    }
    return series.Sum();
}

// Many arguments of different sizes: those beyond the fourth word are on the stack.
[[gnu::noinline]] static Wide Mixed(Word a, Wide b, int8_t c, uint16_t d, Wide e, Word f, int16_t g)
{
    return b * a + static_cast<Wide>(static_cast<int64_t>(c)) + d - (e ^ f) +
           static_cast<Wide>(static_cast<int64_t>(g));
}

static Word Arguments()
{
    Series series(12);
    for (int round = 0; round < rounds; round++) {
        const Word first = series.Next();
        const Wide result = Mixed(first, series.NextWide(), static_cast<int8_t>(round - 150),
                                  static_cast<uint16_t>(round * 400), static_cast<Wide>(round) << 33, 77,
                                  static_cast<int16_t>(-round));
        series.AddWide(result);
    }
    return series.Sum();
}

const Computation computations[computationCount] = {
    {"divisions", Divisions},
    {"wide arithmetic", WideArithmetic},
    {"wide divisions", WideDivisions},
    {"shifts", Shifts},
    {"fractions", Fractions},
    {"small numbers", SmallNumbers},
    {"structures", Structures},
    {"switches", Switches},
    {"calls", Calls},
    {"recursion", Recursion},
    {"sorting", Sorting},
    {"arguments", Arguments},
};

} // namespace computations
