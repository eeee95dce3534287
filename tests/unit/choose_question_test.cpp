// The question asked before removing an item or clearing a group: its three
// states for every group, each input in each state.
#include <gtest/gtest.h>

#include "choose_setup.h"

namespace qs::test {
namespace {

enum class State { Resting, ClearAsked, RemoveAsked };
enum class Input { Clear, Remove, Yes, No, ShowList };
enum class Deleted { Nothing, Item, Group };

const char* Name(State s) {
    switch (s) {
        case State::Resting:
            return "Resting";
        case State::ClearAsked:
            return "Clear asked";
        default:
            return "Remove asked";
    }
}

const char* Name(Input i) {
    switch (i) {
        case Input::Clear:
            return "Clear";
        case Input::Remove:
            return "Remove";
        case Input::Yes:
            return "Yes";
        case Input::No:
            return "No";
        default:
            return "ImageShowList";
    }
}

struct Transition {
    State from;
    Input input;
    // False when the input's button is not on screen in that state.
    bool available;
    State to;
    Deleted deleted;
};

// Every state with every input; the rows that the question leaves by, and
// the buttons a state hides.
constexpr Transition Table[] = {
    {State::Resting, Input::Clear, true, State::ClearAsked, Deleted::Nothing},
    {State::Resting, Input::Remove, true, State::RemoveAsked, Deleted::Nothing},
    {State::Resting, Input::Yes, false, State::Resting, Deleted::Nothing},
    {State::Resting, Input::No, false, State::Resting, Deleted::Nothing},
    {State::Resting, Input::ShowList, true, State::Resting, Deleted::Nothing},
    {State::ClearAsked, Input::Clear, false, State::ClearAsked, Deleted::Nothing},
    {State::ClearAsked, Input::Remove, true, State::RemoveAsked, Deleted::Nothing},
    {State::ClearAsked, Input::Yes, true, State::Resting, Deleted::Group},
    {State::ClearAsked, Input::No, true, State::Resting, Deleted::Nothing},
    {State::ClearAsked, Input::ShowList, true, State::Resting, Deleted::Nothing},
    {State::RemoveAsked, Input::Clear, true, State::ClearAsked, Deleted::Nothing},
    {State::RemoveAsked, Input::Remove, false, State::RemoveAsked, Deleted::Nothing},
    {State::RemoveAsked, Input::Yes, true, State::Resting, Deleted::Item},
    {State::RemoveAsked, Input::No, true, State::Resting, Deleted::Nothing},
    {State::RemoveAsked, Input::ShowList, true, State::Resting, Deleted::Nothing},
};

ui::PictureBox& ButtonOf(ChooseApp& t, std::int16_t g, Input input) {
    LaunchListPane& p = t.pane();
    switch (input) {
        case Input::Clear:
            return p.ImageListClear(g);
        case Input::Remove:
            return p.ImageListRemove(g);
        case Input::Yes:
            return p.ImageConfirmClearList;
        case Input::No:
            return p.ImageCancelClearList;
        default:
            return p.ImageShowList(g);
    }
}

void Enter(ChooseApp& t, std::int16_t g, State s) {
    if (s == State::ClearAsked) t.pane().ImageListClear(g).Press();
    if (s == State::RemoveAsked) t.pane().ImageListRemove(g).Press();
}

void ExpectState(ChooseApp& t, std::int16_t g, State s, const std::string& where) {
    LaunchListPane& p = t.pane();
    EXPECT_EQ(p.IsClearPending(g), s == State::ClearAsked) << where;
    EXPECT_EQ(p.IsRemovePending(g), s == State::RemoveAsked) << where;
    EXPECT_EQ(p.FrameConfirmClearListB.Visible(), s != State::Resting) << where;
    EXPECT_EQ(p.FrameConfirmClearListA.Visible(), s == State::Resting) << where;
    if (s == State::ClearAsked) {
        EXPECT_EQ(p.Mode(), 1) << where;
        EXPECT_FALSE(p.ImageListClear(g).Visible()) << where;
        EXPECT_TRUE(p.ImageListRemove(g).Visible()) << where;
    }
    if (s == State::RemoveAsked) {
        EXPECT_EQ(p.Mode(), 0) << where;
        EXPECT_FALSE(p.ImageListRemove(g).Visible()) << where;
        EXPECT_TRUE(p.ImageListClear(g).Visible()) << where;
    }
}

TEST(ChooseQuestion, EveryTransitionOfTheThreeStatesInEveryGroup) {
    for (std::int16_t g = 0; g < 5; ++g) {
        for (const Transition& tr : Table) {
            const std::string where = "group " + std::to_string(g) + ", " + Name(tr.from) + " + " + Name(tr.input);
            ChooseApp t;
            t.FillAllGroups();
            t.OpenPane();
            t.ShowGroup(g);
            Enter(t, g, tr.from);
            ExpectState(t, g, tr.from, where + " (before)");
            const std::vector<std::wstring> before = Entries(MergedNames(t, g));
            const std::vector<std::wstring> computerBefore = g < 3 ? Entries(ComputerNames(t, g)) : before;

            ui::PictureBox& button = ButtonOf(t, g, tr.input);
            EXPECT_EQ(button.Shown(), tr.available) << where;
            if (!tr.available) continue;
            button.Press();

            ExpectState(t, g, tr.to, where);
            const std::vector<std::wstring> after = Entries(MergedNames(t, g));
            switch (tr.deleted) {
                case Deleted::Nothing:
                    EXPECT_EQ(after, before) << where;
                    break;
                case Deleted::Item:
                    // The first item was selected when the pane opened.
                    EXPECT_EQ(after, std::vector<std::wstring>(before.begin() + 1, before.end())) << where;
                    if (g < 3) {
                        EXPECT_EQ(Entries(ComputerNames(t, g)).size(), computerBefore.size() - 1) << where;
                    }
                    break;
                case Deleted::Group:
                    EXPECT_TRUE(after.empty()) << where;
                    if (g < 3) {
                        EXPECT_EQ(ComputerNames(t, g).ListCount(), 0) << where;
                    }
                    break;
            }
            // The other groups are never touched.
            for (std::int16_t other = 0; other < 5; ++other) {
                if (other != g) {
                    EXPECT_EQ(MergedNames(t, other).ListCount(), 2) << where;
                }
            }
        }
    }
}

TEST(ChooseQuestion, MovingToAnotherGroupDropsTheQuestionButTheButtonItHidStaysHidden) {
    ChooseApp t;
    t.FillAllGroups();
    t.OpenPane();
    LaunchListPane& p = t.pane();
    p.ImageListClear(2).Press();
    t.ShowGroup(0);
    EXPECT_FALSE(p.FrameConfirmClearListB.Visible());
    t.ShowGroup(2);
    EXPECT_FALSE(p.IsClearPending(2));
    EXPECT_FALSE(p.ImageListClear(2).Visible());
    // A click on Remove brings Clear back, and the other way round.
    p.ImageListRemove(2).Press();
    EXPECT_TRUE(p.ImageListClear(2).Visible());
    EXPECT_EQ(p.ImageListClear(2).Picture(), t.app.theme.ImageZeroSet[3]);
    t.ShowGroup(3);
    t.ShowGroup(2);
    EXPECT_FALSE(p.ImageListRemove(2).Visible());
    p.ImageListClear(2).Press();
    EXPECT_TRUE(p.ImageListRemove(2).Visible());
    EXPECT_EQ(p.ImageListRemove(2).Picture(), t.app.theme.ImageZeroSet[0]);
}

TEST(ChooseQuestion, NoPutsBothButtonsBackAndLeavesTheGroupsNameInTheSecondLine) {
    ChooseApp t;
    t.FillAllGroups();
    t.OpenPane();
    t.ShowGroup(4);
    LaunchListPane& p = t.pane();
    p.ImageListRemove(4).Press();
    p.ImageCancelClearList.Press();
    EXPECT_EQ(p.LabelConfirmClearListB.Caption(), L"Web URL?");
    EXPECT_TRUE(p.ImageListRemove(4).Visible());
    EXPECT_TRUE(p.ImageListClear(4).Visible());
    EXPECT_EQ(p.ImageListRemove(4).Picture(), t.app.theme.ImageZeroSet[0]);
    EXPECT_EQ(p.ImageListClear(4).Picture(), t.app.theme.ImageZeroSet[3]);
}

}  // namespace
}  // namespace qs::test
