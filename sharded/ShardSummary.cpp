#include <kornum/KornumSharded.h>

#include "sharded/detail/Bytes.hpp"
#include "sharded/detail/ExactNumber.hpp"
#include "sharded/detail/FirstCounter.hpp"
#include "sharded/detail/StoredValue.hpp"

#include <kornum/Kornummath.h>

#include <array>
#include <limits>
#include <optional>
#include <utility>
#include <x86intrin.h>

namespace KornumSharded {

static_assert(std::numeric_limits<Float>::digits == 64, "Float must be the x87 80-bit format");

namespace {

__extension__ typedef unsigned __int128 u128;  // GCC's 128-bit integer
using detail::ExactNumber;
using detail::Quad;
using detail::Stored;
using detail::StoredOf;

// A finite x is Significand * 2^Exponent with a 64-bit integer significand.
constexpr std::int64_t MinExponent = 1 - 16383 - 63;      // of the subnormals
constexpr std::int64_t MaxExponent = 32766 - 16383 - 63;  // of the largest values

// The fixed-point accumulator of the k-th powers: limb i weighs 2^(64 * i + Base(k)),
// enough limbs for any power of any finite value and 2^63 additions.
constexpr std::int64_t Base(int k) { return k * MinExponent; }
constexpr std::size_t LimbCount(int k) { return std::size_t((k * (MaxExponent - MinExponent) + 64 * k) / 64 + 3); }

// The exponent of the significand's unit: subnormals share the smallest one.
std::int64_t UnitExponent(std::uint16_t top) {
    const std::int64_t biased = top & 0x7fff;
    return biased == 0 ? MinExponent : biased - 16383 - 63;
}

}  // namespace

// The positive and negative parts of each power's sum, kept apart so that every limb is
// an unsigned 128-bit carry-save word; `Normalize` carries them into 64-bit limbs.
struct TKorShardSummary::Sums {
    std::array<std::vector<u128>, 4> Positive, Negative;
    Sums() {
        for (int k = 1; k <= 4; ++k) {
            Positive[k - 1].assign(LimbCount(k), 0);
            Negative[k - 1].assign(LimbCount(k), 0);
        }
    }
    // The powers of the significands of one sign and exponent, summed as integers: most
    // values of a batch share a few exponents, so the shifted adds into the long
    // accumulators happen once a bin rather than once a value. Each sum has a word more
    // than its power, room for 2^64 values.
    using Word = unsigned long long;  // the type of the carry intrinsics
    struct Bin {
        std::uint16_t Top = 0;  // sign and biased exponent
        Word S1[2] = {}, S2[3] = {}, S3[4] = {}, S4[5] = {};
    };
    // The 128-bit product of a and b as its low and high words.
    [[gnu::always_inline]] static void Product(Word a, Word b, Word& low,
                                               Word& high) {
        const u128 p = u128(a) * b;
        low = Word(p);
        high = Word(p >> 64);
    }
    // Adds the N words of a power into a sum of N + 1 words, carrying as it goes.
    template <std::size_t N>
    [[gnu::always_inline]] static void AddWords(Word (&sum)[N + 1], const Word (&words)[N]) {
        unsigned char carry = 0;
        for (std::size_t i = 0; i < N; ++i) carry = _addcarry_u64(carry, sum[i], words[i], &sum[i]);
        sum[N] += carry;
    }
    // m^2 = s, m^3 = s0 m + s1 m 2^64, m^4 = s0^2 + 2 s0 s1 2^64 + s1^2 2^128, each formed
    // exactly in 64-bit words (one 64 x 64 product a multiplication).
    [[gnu::always_inline]] static void AddToBin(Bin& bin, Word m) {
        Word square[2], a[2], b[2], p[2], q[2], r[2];
        Product(m, m, square[0], square[1]);
        Product(square[0], m, a[0], a[1]);
        Product(square[1], m, b[0], b[1]);
        Word cube[3] = {a[0]};
        cube[2] = b[1] + _addcarry_u64(0, a[1], b[0], &cube[1]);
        Product(square[0], square[0], p[0], p[1]);
        Product(square[0], square[1], q[0], q[1]);
        Product(square[1], square[1], r[0], r[1]);
        const Word twice[3] = {q[0] << 1, q[1] << 1 | q[0] >> 63, q[1] >> 63};
        Word fourth[4] = {p[0]};
        unsigned char carry = _addcarry_u64(0, p[1], twice[0], &fourth[1]);
        carry = _addcarry_u64(carry, r[0], twice[1], &fourth[2]);
        fourth[3] = r[1] + twice[2] + carry;
        const Word first[1] = {m};
        AddWords<1>(bin.S1, first);
        AddWords<2>(bin.S2, square);
        AddWords<3>(bin.S3, cube);
        AddWords<4>(bin.S4, fourth);
    }
    // Adds the finite values, counts the NaN and infinities, and widens [minKey, maxKey]
    // to the keys of the values that are not NaN; with a counter, counts every value's key
    // there.
    template <class E>
    void AddBatch(std::span<const E> values, Int64& nan, Int64& plusInf, Int64& minusInf, u128& minKey,
                  u128& maxKey, detail::FirstCounter* counter) {
        std::vector<Bin> bins;
        std::vector<std::uint32_t> binOf(std::size_t(1) << 16, 0);  // by sign and exponent; 0: none yet
        for (const E& x : values) {
            const Stored s = StoredOf(x);
            const u128 key = detail::WideKeyOf(s);
            if (counter) counter->Count(key);
            if ((s.top & 0x7fff) == 0x7fff) {
                if (s.significand << 1) {
                    ++nan;
                    continue;
                }
                ++(s.top & 0x8000 ? minusInf : plusInf);
            }
            if (key < minKey) minKey = key;
            if (key > maxKey) maxKey = key;
            if ((s.top & 0x7fff) == 0x7fff || s.significand == 0) continue;
            std::uint32_t& at = binOf[s.top];
            if (at == 0) {
                bins.push_back({s.top});
                at = std::uint32_t(bins.size());
            }
            AddToBin(bins[at - 1], Word(s.significand));
        }
        for (const Bin& bin : bins) {
            AddPower(1, bin.Top, bin.S1);
            AddPower(2, bin.Top, bin.S2);
            AddPower(3, bin.Top, bin.S3);
            AddPower(4, bin.Top, bin.S4);
        }
        Normalize();
    }
    template <std::size_t Count>
    void AddPower(int k, std::uint16_t top, const Word (&words)[Count]) {
        const bool negative = (top & 0x8000) && (k % 2 == 1);
        std::vector<u128>& limbs = negative ? Negative[k - 1] : Positive[k - 1];
        // Each 64-bit word is added as a 128-bit shifted value, so it spans two limbs at
        // most; the limb index grows by one word each.
        const std::int64_t bit = k * UnitExponent(top) - Base(k);
        const std::size_t limb = std::size_t(bit / 64);
        const int shift = int(bit % 64);
        for (std::size_t i = 0; i < Count; ++i) {
            const u128 shifted = u128(words[i]) << shift;
            limbs[limb + i] += std::uint64_t(shifted);
            limbs[limb + i + 1] += std::uint64_t(shifted >> 64);
        }
    }
    // Carries every limb into 64 bits: one canonical form for each sum.
    void Normalize() {
        for (auto* side : {&Positive, &Negative})
            for (std::vector<u128>& limbs : *side) {
                u128 carry = 0;
                for (u128& limb : limbs) {
                    carry += limb;
                    limb = std::uint64_t(carry);
                    carry >>= 64;
                }
            }
    }
    // Power k's sum, exactly, after Normalize.
    ExactNumber Value(int k) const {
        const std::int64_t base = Base(k);
        ExactNumber positive, negative;
        for (auto [from, into] : {std::pair{&Positive[k - 1], &positive}, std::pair{&Negative[k - 1], &negative}}) {
            into->Limbs.assign(from->size(), 0);
            for (std::size_t i = 0; i < from->size(); ++i) into->Limbs[i] = std::uint64_t((*from)[i]);
            into->Scale = 0;
            into->Trim();
        }
        ExactNumber difference = positive - negative;
        // Scale by 2^base: base = 64 * q + r with 0 <= r < 64.
        const std::int64_t q = base >= 0 ? base / 64 : -((-base + 63) / 64);
        const int r = int(base - 64 * q);
        difference.Scale += q;
        if (r) difference = difference * ExactNumber{false, {std::uint64_t(1) << r}, 0};
        return difference;
    }
};

TKorShardSummary::TKorShardSummary() : sums_(new Sums) {}
TKorShardSummary::~TKorShardSummary() { delete sums_; }
TKorShardSummary::TKorShardSummary(const TKorShardSummary& o)
    : count_(o.count_), minimum_(o.minimum_), maximum_(o.maximum_), nan_(o.nan_), plusInf_(o.plusInf_),
      minusInf_(o.minusInf_), sums_(new Sums(*o.sums_)) {}
TKorShardSummary& TKorShardSummary::operator=(const TKorShardSummary& o) {
    if (this != &o) *this = TKorShardSummary(o);
    return *this;
}
TKorShardSummary::TKorShardSummary(TKorShardSummary&& o) noexcept
    : count_(o.count_), minimum_(o.minimum_), maximum_(o.maximum_), nan_(o.nan_), plusInf_(o.plusInf_),
      minusInf_(o.minusInf_), sums_(o.sums_) {
    o.sums_ = nullptr;
}
TKorShardSummary& TKorShardSummary::operator=(TKorShardSummary&& o) noexcept {
    std::swap(count_, o.count_);
    std::swap(minimum_, o.minimum_);
    std::swap(maximum_, o.maximum_);
    std::swap(nan_, o.nan_);
    std::swap(plusInf_, o.plusInf_);
    std::swap(minusInf_, o.minusInf_);
    std::swap(sums_, o.sums_);
    return *this;
}

void TKorShardSummary::Add(std::span<const Float> Values) { AddCounting(Values, nullptr); }
void TKorShardSummary::Add(std::span<const double> Values) { AddCounting(Values, nullptr); }

void TKorShardSummary::Add(std::span<const Float> Values, TKorFirstCounts& Counts) { AddCounting(Values, &Counts); }
void TKorShardSummary::Add(std::span<const double> Values, TKorFirstCounts& Counts) { AddCounting(Values, &Counts); }

template <class E>
void TKorShardSummary::AddCounting(std::span<const E> Values, TKorFirstCounts* Counts) {
    std::optional<detail::FirstCounter> counter;
    if (Counts) counter.emplace(Values);
    const bool any = count_ > nan_;
    u128 minKey = any ? detail::WideKeyOf(StoredOf(minimum_)) : ~u128(0);
    u128 maxKey = any ? detail::WideKeyOf(StoredOf(maximum_)) : 0;
    sums_->AddBatch(Values, nan_, plusInf_, minusInf_, minKey, maxKey, counter ? &*counter : nullptr);
    if (counter) counter->AddTo(*Counts);
    count_ += Int64(Values.size());
    if (count_ > nan_) {
        minimum_ = detail::ValueOfWideKey(minKey);
        maximum_ = detail::ValueOfWideKey(maxKey);
    }
}

void TKorShardSummary::Merge(const TKorShardSummary& Other) {
    const bool mine = count_ > nan_, theirs = Other.count_ > Other.nan_;
    if (theirs) {
        // By their keys, as in Add: -0 is below +0, whichever summary holds it.
        const auto below = [](const Float& a, const Float& b) { return KeyOf(a) < KeyOf(b); };
        minimum_ = mine && !below(Other.minimum_, minimum_) ? minimum_ : Other.minimum_;
        maximum_ = mine && !below(maximum_, Other.maximum_) ? maximum_ : Other.maximum_;
    }
    count_ += Other.count_;
    nan_ += Other.nan_;
    plusInf_ += Other.plusInf_;
    minusInf_ += Other.minusInf_;
    for (int k = 0; k < 4; ++k)
        for (std::size_t i = 0; i < sums_->Positive[k].size(); ++i) {
            sums_->Positive[k][i] += Other.sums_->Positive[k][i];
            sums_->Negative[k][i] += Other.sums_->Negative[k][i];
        }
    sums_->Normalize();
}

bool TKorShardSummary::operator==(const TKorShardSummary& Other) const { return Serialize() == Other.Serialize(); }

// ---- Bytes ---------------------------------------------------------------------------

std::string TKorShardSummary::Serialize() const {
    detail::ByteWriter out("KNSS", 1);
    out.Unsigned(std::uint64_t(count_), 8);
    out.Unsigned(std::uint64_t(nan_), 8);
    out.Unsigned(std::uint64_t(plusInf_), 8);
    out.Unsigned(std::uint64_t(minusInf_), 8);
    out.Real(count_ > nan_ ? minimum_ : 0);
    out.Real(count_ > nan_ ? maximum_ : 0);
    for (int k = 0; k < 4; ++k)
        for (const auto* limbs : {&sums_->Positive[k], &sums_->Negative[k]}) {
            std::uint32_t nonzero = 0;
            for (u128 limb : *limbs) nonzero += limb != 0;
            out.Unsigned(nonzero, 4);
            for (std::size_t i = 0; i < limbs->size(); ++i)
                if ((*limbs)[i] != 0) {
                    out.Unsigned(i, 4);
                    out.Unsigned(std::uint64_t((*limbs)[i]), 8);
                }
        }
    return out.Take();
}

TKorShardSummary TKorShardSummary::Deserialize(std::string_view Bytes) {
    detail::ByteReader in(Bytes, "KNSS", 1, "shard summary");
    TKorShardSummary s;
    s.count_ = Int64(in.Unsigned(8));
    s.nan_ = Int64(in.Unsigned(8));
    s.plusInf_ = Int64(in.Unsigned(8));
    s.minusInf_ = Int64(in.Unsigned(8));
    s.minimum_ = in.Real();
    s.maximum_ = in.Real();
    if (s.count_ < 0 || s.nan_ < 0 || s.plusInf_ < 0 || s.minusInf_ < 0 ||
        u128(s.nan_) + u128(s.plusInf_) + u128(s.minusInf_) > u128(s.count_))
        in.Fail("its counts are inconsistent");
    if (!(s.minimum_ <= s.maximum_)) in.Fail("its minimum exceeds its maximum");
    for (int k = 0; k < 4; ++k)
        for (auto* limbs : {&s.sums_->Positive[k], &s.sums_->Negative[k]}) {
            const std::uint64_t nonzero = in.Unsigned(4);
            std::int64_t previous = -1;
            for (std::uint64_t j = 0; j < nonzero; ++j) {
                const std::uint64_t index = in.Unsigned(4);
                const std::uint64_t limb = in.Unsigned(8);
                if (index >= limbs->size() || std::int64_t(index) <= previous || limb == 0)
                    in.Fail("the sum of powers " + std::to_string(k + 1) + " has a bad limb");
                (*limbs)[index] = limb;
                previous = std::int64_t(index);
            }
        }
    in.End();
    return s;
}

// ---- Moments -------------------------------------------------------------------------

TKorMoments TKorShardSummary::Moments(bool Population) const {
    TKorMoments m;
    const Int64 n = count_;
    if (n == 0) return m;
    if (nan_ || plusInf_ || minusInf_) {
        // IEEE arithmetic on the non-finite values: a NaN, or both infinities, give NaN.
        const Float nan = std::numeric_limits<Float>::quiet_NaN();
        const Float inf = std::numeric_limits<Float>::infinity();
        m.Sum = nan_ || (plusInf_ && minusInf_) ? nan : plusInf_ ? inf : -inf;
        m.SumSq = nan_ ? nan : inf;
        m.Mean = m.Sum;
        m.Variance = m.StdDev = m.Skew = m.Kurtosis = nan;
        return m;
    }
    const ExactNumber s1 = sums_->Value(1), s2 = sums_->Value(2), s3 = sums_->Value(3), s4 = sums_->Value(4);
    const ExactNumber N = ExactNumber::Of(n);
    m.Sum = Float(detail::ToQuad(s1));
    m.SumSq = Float(detail::ToQuad(s2));
    const Quad q = Quad(n);
    m.Mean = Float(detail::ToQuad(s1) / q);

    // n * (sum of squared deviations), and likewise n^2 and n^3 times the third and fourth.
    const ExactNumber m2 = N * s2 - s1 * s1;
    const Quad ssd = detail::ToQuad(m2) / q;
    const Quad variance = Population ? ssd / q : (n < 2 ? Quad(0) : ssd / (q - 1));
    const Quad sd = detail::SquareRoot(variance);
    m.Variance = Float(variance);
    m.StdDev = Float(sd);
    if (Kornummath::FloatIsZero(m.StdDev)) return m;
    const ExactNumber three = ExactNumber::Of(3), two = ExactNumber::Of(2);
    if (n > 2) {
        const ExactNumber m3 = N * N * s3 - three * N * s1 * s2 + two * s1 * s1 * s1;
        const Quad cubed = detail::ToQuad(m3) / (q * q);  // the sum of cubed deviations
        m.Skew = Float(Population ? cubed / (sd * sd * q * sd) : q * cubed / (sd * sd * ((q - 1) * (q - 2)) * sd));
    }
    if (n > 3) {
        const ExactNumber m4 = N * N * N * s4 - ExactNumber::Of(4) * N * N * s1 * s3 +
                               ExactNumber::Of(6) * N * s1 * s1 * s2 - three * s1 * s1 * s1 * s1;
        const Quad fourth = detail::ToQuad(m4) / (q * q * q);
        const Quad s4q = (sd * sd) * (sd * sd);
        m.Kurtosis = Float(Population ? fourth / (s4q * q) - 3
                                      : q * (q + 1) * fourth / (s4q * ((q - 1) * (q - 2) * (q - 3))) -
                                            3 * (q - 1) * (q - 1) / ((q - 2) * (q - 3)));
    }
    return m;
}

}  // namespace KornumSharded
