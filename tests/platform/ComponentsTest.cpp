// String lists, component ownership and the text form of components.
#include "TestSupport.h"

#include <kornum/PlatformStreaming.h>

#include <string>
#include <type_traits>

using namespace Platform;
using KornumTest::Raises;

namespace {

TEST(StringList, BehavesAsAnOrderedListOfLinesAndTakesOnlyAnotherList) {
    TStringList list;
    EXPECT_EQ(list.Add("a"), 0);
    EXPECT_EQ(list.Add("b"), 1);
    list.Insert(1, "x");
    list.Insert(3, "z");  // at the end
    EXPECT_EQ(list.Text(), "a\nx\nb\nz\n");
    list.Delete(0);
    list.Put(0, "y");
    EXPECT_EQ(list.Text(), "y\nb\nz\n");
    EXPECT_EQ(list.IndexOf("z"), 2);
    EXPECT_EQ(list.IndexOf("a"), -1);
    EXPECT_THROW(list[3], EStringListError);
    EXPECT_THROW(list.Delete(-1), EStringListError);
    EXPECT_THROW(list.Insert(5, "q"), EStringListError);

    list.SetText("one\r\ntwo\rthree\nfour\n");
    TStringList copy{"old"};
    copy.Assign(list);
    list.Clear();
    EXPECT_EQ(copy.Text(), "one\ntwo\nthree\nfour\n");  // a copy, not a view
    TComponent component(nullptr);
    EXPECT_TRUE(Raises<EConvertError>([&] { list.Assign(component); }, "Cannot assign a TComponent to a TStringList"));
}

// Counts the live instances, to see that owners free what they own.
struct Counted : TComponent {
    static inline int alive = 0;
    explicit Counted(TComponent* owner) : TComponent(owner) { ++alive; }
    ~Counted() override { --alive; }
};

TEST(Component, AnOwnerFreesTheComponentsItOwns) {
    {
        TComponent owner(nullptr);
        auto* child = new Counted(&owner);
        new Counted(child);  // owned by the child, freed through it
        auto* freedEarly = new Counted(&owner);
        EXPECT_EQ(Counted::alive, 3);
        EXPECT_EQ(owner.ComponentCount(), 2);
        delete freedEarly;  // leaves its owner's list
        EXPECT_EQ(owner.ComponentCount(), 1);
        EXPECT_EQ(owner.Components(0), child);
        EXPECT_EQ(child->Owner(), &owner);
    }
    EXPECT_EQ(Counted::alive, 0);
}

// A component with one property of each kind, for the text form.
struct Sample : TComponent {
    std::int64_t count = 3;
    long double level = 0.5L;
    bool active = false;
    std::string label;
    std::vector<std::string> lines;
    int loadedCalls = 0;
    bool loadingWhileReading = false;

    explicit Sample(TComponent* owner) : TComponent(owner) {}
    std::string_view ClassName() const override { return "TSample"; }
    void Loaded() override {
        TComponent::Loaded();
        ++loadedCalls;
    }
    // A stored property held in member M; setting it notes whether loading was under way.
    template <auto M>
    static TPropertyInfo Stored(const char* name, TPropertyType type, TPropertyValue byDefault) {
        return {name, type, true, std::move(byDefault),
                [](const TComponent& c) { return TPropertyValue(static_cast<const Sample&>(c).*M); },
                [](TComponent& c, const TPropertyValue& v) {
                    auto& sample = static_cast<Sample&>(c);
                    sample.*M = std::get<std::remove_reference_t<decltype(sample.*M)>>(v);
                    sample.loadingWhileReading = sample.Loading();
                }};
    }
    std::span<const TPropertyInfo> PublishedProperties() const override {
        static const TPropertyInfo properties[] = {
            Stored<&Sample::count>("Count", TPropertyType::Integer, std::int64_t(3)),
            Stored<&Sample::level>("Level", TPropertyType::Float, 0.5L),
            Stored<&Sample::active>("Active", TPropertyType::Boolean, false),
            Stored<&Sample::label>("Label", TPropertyType::Text, std::string()),
            Stored<&Sample::lines>("Lines", TPropertyType::Strings, std::vector<std::string>{}),
            {"Derived", TPropertyType::Integer, false, std::int64_t(0),
             [](const TComponent& c) { return TPropertyValue(static_cast<const Sample&>(c).count * 2); },
             [](TComponent&, const TPropertyValue&) {}},
        };
        return properties;
    }
};

TEST(TextForm, WritesOnlyStoredPropertiesThatDifferFromTheirDefaultsAndReadsThemBack) {
    Sample sample(nullptr), copy(nullptr);
    EXPECT_EQ(WriteComponentText(sample), "TSample\nend\n");
    sample.SetName("First");
    sample.level = 0.1L;
    sample.label = "say \"hi\"\\";
    sample.lines = {"1.5", "a, b"};
    EXPECT_EQ(WriteComponentText(sample),
              "TSample First\n"
              "  Level = 0.1\n"
              "  Label = \"say \\\"hi\\\"\\\\\"\n"
              "  Lines = [\"1.5\", \"a, b\"]\n"
              "end\n");

    sample.count = -7;
    sample.level = 1.0L / 3;  // needs all 64 bits to read back
    sample.active = true;
    sample.label = "tab\there";
    ReadComponentText(copy, WriteComponentText(sample));
    EXPECT_EQ(std::tie(copy.count, copy.level, copy.active, copy.label, copy.lines),
              std::tie(sample.count, sample.level, sample.active, sample.label, sample.lines));
    EXPECT_EQ(copy.Name(), "First");
    EXPECT_TRUE(copy.loadingWhileReading);
    EXPECT_FALSE(copy.Loading());
    EXPECT_EQ(copy.loadedCalls, 1);
}

TEST(TextForm, RejectsWhatItCannotRead) {
    Sample sample(nullptr);
    const std::pair<const char*, const char*> cases[] = {
        {"TOther\nend\n", "The text holds a TOther, not a TSample"},
        {"TSample\n  Count = 1\n", "A component text starts with its class and ends with 'end'"},
        {"TSample\n  Derived = 4\nend\n", "Line 2: TSample has no stored property 'Derived'"},
        {"TSample\n  Colour = 4\nend\n", "Line 2: TSample has no stored property 'Colour'"},
        {"TSample\n  Count = many\nend\n", "Line 2: a number was expected"},
        {"TSample\n  Active = yes\nend\n", "Line 2: true or false was expected"},
        {"TSample\n  Lines = [\"a\"\nend\n", "Line 2: the list has no closing bracket"},
        {"TSample\n  Count 4\nend\n", "Line 2: 'Name = value' expected"},
    };
    for (const auto& [text, message] : cases) {
        EXPECT_TRUE(Raises<EReadError>([&] { ReadComponentText(sample, text); }, message)) << text;
        EXPECT_FALSE(sample.Loading());
    }
    EXPECT_EQ(sample.loadedCalls, 0);  // a failed read does not finish loading
}

}  // namespace
