#pragma once

// A number, or nothing, that is typed or stepped with arrow keys, wheel and spin buttons. Until the editor is
// left, what was typed or stepped to stands in it as text, and the value stays what it was.

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "forms/editor.h"
#include "forms/step_grid.h"

namespace algo::forms {

/// What a spin edit accepts and how it shows it.
struct TNumberFormat {
  bool whole = false;          ///< digits only, no decimal point
  bool grouped = false;        ///< with thousands separators
  std::int32_t decimals = -1;  ///< decimals shown at most; -1 shows all of them

  bool operator==(const TNumberFormat&) const = default;
};

/// A number or nothing. Values that the program assigns are taken as they are, so that one outside the bounds
/// is shown and can be refused with a message; what the trader types is bent to the nearer bound unless
/// SetBendsTyped says otherwise. Typed text that is no number, one with a comma anywhere but between groups
/// of three digits for instance, gives the former value back. A number that is not finite counts as nothing.
class ALGO_SHARED TSpinEdit : public TEditor {
 public:
  TSpinEdit(TFrame& frame, std::string name);

  std::optional<double> Value() const { return FValue; }
  void SetValue(std::optional<double> value);

  /// The number that stands in the editor, typed or taken up, bounds aside: nothing where the text was
  /// emptied, the value where what was typed is no number.
  std::optional<double> EnteredValue() const;

  /// The text being typed, else the value in the editor's format.
  std::string Text() const override;
  /// The value in the editor's format, whatever is being typed; empty for none.
  std::string ValueText() const;
  /// Assigns the number that `text` shows; an empty text empties the value, a text that is no number changes
  /// nothing.
  void SetText(std::string_view text) override;

  std::optional<double> Min() const { return FMin; }
  std::optional<double> Max() const { return FMax; }
  void SetMin(std::optional<double> min);
  void SetMax(std::optional<double> max);

  /// Whether a typed number outside the bounds goes to the nearer one. An editor whose values are refused
  /// with a message takes any number instead, so that a slip is seen and never sent as something else.
  bool BendsTyped() const { return FBendsTyped; }
  void SetBendsTyped(bool bends) { FBendsTyped = bends; }

  /// How wide a step is, on an editor without a grid.
  double Step() const { return FStep; }
  void SetStep(double step);
  /// The grid that steps go along, for a host that knows one for what is edited; an empty grid takes it off.
  const TStepGrid& StepGrid() const { return FStepGrid; }
  void SetStepGrid(TStepGrid grid) { FStepGrid = std::move(grid); }

  const TNumberFormat& Format() const { return FFormat; }
  void SetFormat(const TNumberFormat& format);

  std::string Pasted(std::string_view text) const override;

 protected:
  bool Accepts(std::string_view typed, char key) const override;
  void SetTyped(std::string typed) override;
  void TakeUp() override;
  std::string Normalized(std::string_view text) const override;

 private:
  friend class TFrame;

  /// Puts the number that many steps further into the editor as if it had been typed, and selects it. Starts
  /// from 0 where nothing is entered; a number outside the bounds goes to the nearer one.
  void StepBy(std::int32_t steps);
  double Stepped(double value, std::int32_t steps) const;
  double HeldToBounds(double value) const;

  std::optional<double> FValue;
  std::optional<double> FMin;
  std::optional<double> FMax;
  std::optional<std::string> FTyped;
  TNumberFormat FFormat;
  double FStep = 1;
  bool FBendsTyped = true;
  TStepGrid FStepGrid;
};

}  // namespace algo::forms
