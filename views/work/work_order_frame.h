#pragma once

// The work order frame: cuts a child order out of a work parent. The parent is shown read-only; the child's
// quantity is held within what the parent has left, goes along with a percentage of the parent's quantity,
// and comes in whole lots; its price can be held to the parent's.

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "views/change/change_frame.h"

namespace algo::views::work {

// The frame speaks of the entry form's own controls.
using change::TAlgoOrderChangeFrame;
using entry::TField;
using entry::TGroup;

class TAlgoWorkOrderFrame : public TAlgoOrderChangeFrame {
 public:
  TAlgoWorkOrderFrame();

  /// Loads the parent. Throws what loading throws; the order is used until ReleaseOrder.
  void WorkOrder(host::TCustomClientOrder* order);

  /// Runs after the algorithm was changed, and with it the size of the form.
  void SetOnAlgoTypeChange(std::function<void()> changed) { FOnAlgoTypeChange = std::move(changed); }

  bool SetLanguage(std::int32_t language) override;

 protected:
  void JoinGroup() override;
  void InitializeViewbyOrder(host::TCustomClientOrder& order) override;
  virtual void AssignOrderInfo(const host::TCustomClientOrder& order);

  void btnSubmitClick() override;
  void btnClearClick() override;
  void cbLockPriceChange() override;

 private:
  // work_form.cpp
  void MakeWorkForm();
  void Initailize();
  void SetWorkCaptions();
  void ReadConfig();
  void FrameResize();
  std::function<void()> EnterLeadsTo(forms::TControl& next);
  void FocusFrom(forms::TControl* next);

  // work_rules.cpp
  bool HoldsPrice() const;
  void SetPriceMaxMinValue();
  void ProcessPriceValueUpdate();
  void edtQtyPropertiesChange();
  void edtPecentagePropertiesChange();
  double GetLotSize() const;
  double GetSpinEditValue(const forms::TSpinEdit* editor) const;
  bool CheckInput();
  std::optional<model::TRuleFailure> FirstFailure() const;
  void UpdateOrder();

  forms::TTextEdit* tedtOrderNum = nullptr;
  forms::TComboBox* cbSide = nullptr;
  forms::TSpinEdit* sedtAvaliQty = nullptr;
  forms::TSpinEdit* sedtPecentage = nullptr;

  std::vector<std::string> FOrderTIFList;  ///< time-in-force choices; kept, though no control shows them
  bool FAvailQtyAsQty = true;
  bool FConfirmWorkOrdPri = false;
  bool FIsUpdating = false;
};

}  // namespace algo::views::work
