// Failure convention: one raising helper, exact class and text, replaceable tables.
#include "TestSupport.h"

#include <kornum/Kornum_RS_Math.h>
#include <kornum/Kornummsgs.h>

#include <set>
#include <string>

using namespace Kornum_RS_Math;
using KornumTest::Raises;

namespace {

class Messages : public ::testing::Test {
protected:
    void TearDown() override { Platform::RestoreDefaultResources(); }
};

TEST_F(Messages, FortyFiveIdentifiersWithUniqueIdsNamesAndTexts) {
    std::set<int> ids;
    std::set<std::string> names;
    for (const Platform::ResourceString* message : AllMessages) {
        ids.insert(message->Id);
        names.insert(message->Name);
        EXPECT_FALSE(std::string(message->DefaultText).empty()) << message->Name;
        EXPECT_EQ(Platform::FindResource(message->Name), message);
    }
    EXPECT_EQ(std::make_pair(ids.size(), names.size()), std::make_pair(std::size_t(45), std::size_t(45)));
}

TEST_F(Messages, RaiseThrowsTheGivenClassWithTheTextInForceAndTablesReplaceTexts) {
    EXPECT_TRUE(Raises([] { Platform::Raise(rsVectorIsEmpty); }, "The vector is empty"));
    EXPECT_TRUE(Raises<Platform::Exception>([] { Platform::Raise<Platform::Exception>(rsMedianNotFound); },
                                            rsMedianNotFound));
    Platform::SetResourceText(rsVectorIsEmpty, "Der Vektor ist leer");
    EXPECT_TRUE(Raises([] { Platform::Raise(rsVectorIsEmpty); }, "Der Vektor ist leer"));
    EXPECT_EQ(rsMatrixIsEmpty.Text(), "The matrix is empty");  // others untouched

    // A whole table replaces every text, falling back to the defaults.
    Platform::SetResourceText(rsMagZero, "stale");
    Platform::ReplaceResourceTable({{"rsVectorG1", "Mehr als ein Wert nötig"},
                                    {"rsStdDev", "Standardabweichung muss positiv sein"}});
    EXPECT_EQ(rsVectorG1.Text(), "Mehr als ein Wert nötig");
    EXPECT_EQ(rsStdDev.Text(), "Standardabweichung muss positiv sein");
    EXPECT_EQ(rsMagZero.Text(), rsMagZero.DefaultText);  // not in the table: default

    // An unknown name rejects the whole table and leaves the one in force alone.
    EXPECT_THROW(Platform::ReplaceResourceTable({{"rsVectorG1", "x"}, {"rsNoSuchThing", "y"}}),
                 Platform::Exception);
    EXPECT_EQ(rsVectorG1.Text(), "Mehr als ein Wert nötig");
    Platform::RestoreDefaultResources();
    EXPECT_EQ(rsVectorG1.Text(), rsVectorG1.DefaultText);
}

TEST(ErrorMsg, GoesThroughTheInstalledHandler) {
    std::string shown;
    auto previous = Kornummsgs::SetErrorMsgHandler([&](const std::string& text) { shown = text; });
    Kornummsgs::ErrorMsg(rsNoInvert.Text());
    EXPECT_EQ(shown, rsNoInvert.Text());
    Kornummsgs::SetErrorMsgHandler(previous);

    testing::internal::CaptureStderr();
    Kornummsgs::ErrorMsg("to standard error");
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "to standard error\n");
}

}  // namespace
