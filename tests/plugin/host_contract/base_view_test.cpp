// The base class of view providers: the order of its operations, its own answers, and what it passes on.

#include "plugin/host_contract/base_view.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstring>

#include "tests/plugin/host_contract/noting_view.h"

namespace algo::host::tests {
namespace {

using TLog = std::vector<std::string>;

/// Where the method stands in the table of virtual methods: a pointer to a virtual method begins with its
/// offset there.
template <class TMethod>
std::ptrdiff_t SlotOf(TMethod method) {
  std::ptrdiff_t offset = 0;
  static_assert(sizeof(method) >= sizeof(offset));
  std::memcpy(&offset, &method, sizeof(offset));
  return offset / static_cast<std::ptrdiff_t>(sizeof(void*));
}

struct TOpened : TIBaseView {
  using TIBaseView::AddView;
};

TEST(BaseView, ItsOperationsStandInTheOrderOfTheirSlots) {
  const std::ptrdiff_t slots[] = {
      SlotOf(&TIBaseView::GetName),
      SlotOf(&TIBaseView::GetViewID),
      SlotOf(&TIBaseView::GetMenuLevel),
      SlotOf(&TIBaseView::GetMenuIndex),
      SlotOf(&TIBaseView::GetMenuID),
      SlotOf(&TIBaseView::GetMenuCaption),
      SlotOf(&TIBaseView::GetMenuGroupIndex),
      SlotOf(&TIBaseView::GetIsVisible),
      SlotOf(&TIBaseView::GetIsWindow),
      SlotOf(&TIBaseView::OpenNewInstance),
      SlotOf(&TIBaseView::CloseInstance),
      SlotOf(&TIBaseView::GetWidth),
      SlotOf(&TIBaseView::GetHeight),
      SlotOf(&TIBaseView::GetViewCaption),
      SlotOf(&TIBaseView::HandleCaptionButtonClick),
      SlotOf(&TIBaseView::GetViewCaptionButtons),
      SlotOf(&TIBaseView::GetViewCaptionButtonImageList),
      SlotOf(&TIBaseView::GetViewIcon),
      SlotOf(&TIBaseView::GetPreferenceView),
      SlotOf(&TIBaseView::GetIsDialog),
      SlotOf(&TIBaseView::GetIsSizeable),
      SlotOf(&TIBaseView::GetCanDock),
      SlotOf(&TIBaseView::GetDockPosition),
      SlotOf(&TIBaseView::GetShortCutList),
      SlotOf(&TIBaseView::ExecuteShortcutAction),
      SlotOf(&TIBaseView::SetSkin),
      SlotOf(&TIBaseView::SetLanguage),
      SlotOf(&TIBaseView::SetFont),
      SlotOf(&TIBaseView::ActiveView),
      SlotOf(&TIBaseView::DeactiveView),
      SlotOf(&TIBaseView::GetLayoutData),
      SlotOf(&TIBaseView::SetLayoutData),
      SlotOf(&TIBaseView::SetCustomData),
      SlotOf(&TIBaseView::ContainView),
      SlotOf(&TIBaseView::SendMessage),
      SlotOf(&TIBaseView::SetGroupID),
      SlotOf(&TIBaseView::GetGroupID),
      SlotOf(&TIBaseView::GetIsDialogViewAfterMainShow),
      SlotOf(&TIBaseView::GetDialogViewIndexAfterMainShow),
      SlotOf(&TOpened::AddView),
      SlotOf(&TIBaseView::GetDefaultSize),
      SlotOf(&TIBaseView::GetDefaultCaption),
      SlotOf(&TIBaseView::InitializeShortcut),
      SlotOf(&TIBaseView::FindView),
      SlotOf(&TIBaseView::ReleaseView),
  };
  for (std::size_t i = 1; i < std::size(slots); ++i) {
    EXPECT_EQ(slots[i], slots[i - 1] + 1) << "the operation at " << i << " in this list";
  }
}

/// What a provider answers that has nothing to say, for a handle that names no instance or a view that is as
/// silent.
void ExpectNeutralAnswers(TIBaseView& provider, TInstanceHandle instance) {
  EXPECT_EQ(provider.GetViewCaption(instance), "");
  EXPECT_TRUE(provider.GetViewCaptionButtons(instance).empty());
  EXPECT_TRUE(provider.GetViewCaptionButtonImageList(instance).empty());
  EXPECT_EQ(provider.GetViewIcon(instance), TImage());
  EXPECT_FALSE(provider.ExecuteShortcutAction(instance, 21));
  EXPECT_FALSE(provider.SetLanguage(instance, 1));
  EXPECT_EQ(provider.GetLayoutData(instance), "");
  EXPECT_FALSE(provider.SetLayoutData(instance, "Quantity=1"));
  EXPECT_FALSE(provider.SetCustomData(instance, "data"));
  EXPECT_FALSE(provider.SendMessage(instance, 1, "text"));
  EXPECT_FALSE(provider.SetGroupID(instance, "G1"));
  EXPECT_EQ(provider.GetGroupID(instance), "");
  provider.HandleCaptionButtonClick(instance, 7);
  provider.SetSkin(instance, "Dark");
  provider.SetFont(instance, {.size = 12});
  provider.ActiveView(instance);
  provider.DeactiveView(instance);
}

TEST(BaseView, AProviderWithNothingToSayOpensPanelsAndOffersNothingMore) {
  TSampleProvider provider;
  EXPECT_FALSE(provider.GetIsWindow());
  EXPECT_FALSE(provider.GetIsDialog());
  EXPECT_TRUE(provider.GetIsSizeable());
  EXPECT_TRUE(provider.GetCanDock());
  EXPECT_EQ(provider.GetDockPosition(), TDockPosition::HostsChoice);
  EXPECT_EQ(provider.GetPreferenceView(), nullptr);
  EXPECT_FALSE(provider.GetIsDialogViewAfterMainShow());
  EXPECT_EQ(provider.GetDialogViewIndexAfterMainShow(), 0);
  provider.InitializeShortcut();
  EXPECT_TRUE(provider.GetShortCutList().empty());
}

TEST(BaseView, AnUnknownHandleIsAnsweredWithNothing) {
  TLog log;
  TNotingProvider provider(log);
  const auto closed = provider.OpenNewInstance();
  provider.CloseInstance(closed);
  EXPECT_EQ(log, TLog{"closed"});
  for (const TInstanceHandle handle : {closed, TInstanceHandle{0}, TInstanceHandle{1}}) {
    EXPECT_FALSE(provider.ContainView(handle));
    EXPECT_EQ(provider.FindView(handle), nullptr);
    EXPECT_EQ(provider.GetWidth(handle), 0);
    EXPECT_EQ(provider.GetHeight(handle), 0);
    ExpectNeutralAnswers(provider, handle);
    provider.CloseInstance(handle);
  }
  EXPECT_EQ(log, TLog{"closed"});
}

class TSilentProvider final : public TSampleProvider {
 public:
  TInstanceHandle OpenNewInstance() override {
    auto view = std::make_shared<TSampleView>();
    const TInstanceHandle handle = HandleOf(*view);
    AddView(std::move(view));
    return handle;
  }
};

TEST(BaseView, AViewWithNothingToSayAnswersWithNothing) {
  TSilentProvider provider;
  const auto instance = provider.OpenNewInstance();
  ASSERT_TRUE(provider.ContainView(instance));
  ExpectNeutralAnswers(provider, instance);
}

TEST(BaseView, WhatIsAskedOfAnInstanceReachesItsView) {
  TLog log;
  TNotingProvider provider(log);
  provider.OpenNewInstance();
  const auto instance = provider.OpenNewInstance();
  EXPECT_EQ(provider.GetWidth(instance), 320);
  EXPECT_EQ(provider.GetHeight(instance), 200);
  EXPECT_EQ(provider.GetViewCaption(instance), "its caption");
  EXPECT_EQ(provider.GetViewCaptionButtons(instance),
            (std::vector<TCaptionButton>{{7, "Pin", 0}, {8, "Help", -1}}));
  EXPECT_EQ(provider.GetViewCaptionButtonImageList(instance), (std::vector<TImage>{{1, 1, {0xFF112233}}}));
  EXPECT_EQ(provider.GetViewIcon(instance), (TImage{1, 1, {0xFF445566}}));
  EXPECT_EQ(provider.GetLayoutData(instance), "its layout");
  EXPECT_EQ(provider.GetGroupID(instance), "its group");
  provider.HandleCaptionButtonClick(instance, 8);
  EXPECT_TRUE(provider.ExecuteShortcutAction(instance, 21));
  provider.SetSkin(instance, "Dark");
  EXPECT_TRUE(provider.SetLanguage(instance, 2));
  provider.SetFont(instance, {.size = 12});
  provider.ActiveView(instance);
  provider.DeactiveView(instance);
  EXPECT_TRUE(provider.SetLayoutData(instance, "Quantity=1"));
  EXPECT_TRUE(provider.SetCustomData(instance, "x"));
  EXPECT_TRUE(provider.SendMessage(instance, 5, "hello"));
  EXPECT_TRUE(provider.SetGroupID(instance, "G1"));
  provider.CloseInstance(instance);
  EXPECT_EQ(log, (TLog{"button 8", "shortcut 21", "skin Dark", "language 2", "font 12", "active", "inactive",
                       "layout Quantity=1", "data x", "message 5 hello", "group G1", "closed"}));
}

}  // namespace
}  // namespace algo::host::tests
