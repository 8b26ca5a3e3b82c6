// Ending processes by keys and boxes: the one that is named goes, and no other.
// profiles: pocketpc pocketpc-vga smartphone
// device's executable: pocketpc pocketpc-vga smartphone
#include "tests/e2e/ProcsScreen.h"

#include "rig/Controls.h"
#include "rig/Desktop.h"
#include "rig/Input.h"
#include "rig/WaitFor.h"

#include <deque>

using namespace rig;

class ProcsEndTest : public ProcsScreen
{
  protected:
    // Ends with its window, by a question of an honest kind.
    static void MakeWindow(const Actor& actor) { ASSERT_TRUE(actor.Make({.endsActor = true})); }
};

TEST_F(ProcsEndTest, TenProgramsInARowAndNoneButTheOneNamed)
{
    static constexpr int programs = 10;
    static constexpr int withoutWindow = 4; // it needs the way to the end
    std::deque<Actor> actors;
    std::vector<std::wstring> names;
    for (int i = 0; i < programs; i++) {
        names.push_back(L"Victim " + std::to_wstring(i) + L".exe");
        actors.emplace_back(ActorNamed(names.back()));
        ASSERT_TRUE(actors.back().Ready());
        if (i != withoutWindow) {
            MakeWindow(actors.back());
        }
    }
    Front();
    const auto others = [&] {
        std::vector<DWORD> ids;
        for (const SessionProcess& each : Processes()) {
            if (!each.name.starts_with(L"Victim")) {
                ids.push_back(each.id);
            }
        }
        return ids;
    };
    const auto before = others();
    // From the middle outwards and back, so that rows above and below go.
    for (const int victim : {4, 0, 9, 5, 1, 8, 2, 7, 3, 6}) {
        SCOPED_TRACE(victim);
        const auto index = static_cast<size_t>(victim);
        Answer(AskToEnd(actors[index].Process(), names[index]), yesKey);
        if (victim == withoutWindow) {
            Answer(WaitForNoAnswerBox(), VK_RETURN);
            Answer(WaitForWarningBox(), yesKey);
        }
        ASSERT_EQ(0u, actors[index].ExitCode(patience).value_or(99));
        names[index].clear();
        EXPECT_TRUE(WaitFor([&] { return ListCount(list) == static_cast<int>(Processes().size()); }));
        ExpectUsable();
        for (size_t i = 0; i < actors.size(); i++) {
            ASSERT_EQ(!names[i].empty(), actors[i].Running()) << i;
        }
    }
    EXPECT_EQ(before, others());
    EXPECT_FALSE(program->Notice());
}
