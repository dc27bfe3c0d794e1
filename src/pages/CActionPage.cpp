#include "pages/CActionPage.h"

#include "DriverLIB/MessageText.h"
#include "environment/FileDialog.h"
#include "MessageIds.h"
#include "pages/HostBits.h"
#include "window/CActivationContext.h"

namespace {

// Characters.
constexpr int kProgramLimit = 209;
constexpr int kParametersLimit = 49;

}  // namespace

MessageTable CActionPage::Messages() const {
  static constexpr MessageRow kMessages[] = {
      OnClick<&CActionPage::OnProgramCheck>(IDC_ACTION_PROGRAM_CHECK),
      OnClick<&CActionPage::OnBrowseProgram>(IDC_ACTION_BROWSE),
  };
  return kMessages;
}

void CActionPage::ExchangeCockpitValues(const CockpitExchange& exchange, ActionCockpitValues& values) {
  exchange.Bits(startAction, values.startAction, kStartProgram, programCheckOverride.IsSet());
  exchange.Bits(startAction, values.startAction, kStartViewer, viewerCheckOverride.IsSet());
  exchange.Bits(startAction, values.startAction, kStartProgramBefore);
}

BOOL CActionPage::OnInitDialog() {
  Item(IDC_ACTION_VIEWER).SetText(MessageText(MSG_ACTION_VIEWER).Text());
  for (const int edit : {IDC_ACTION_PROGRAM, IDC_ACTION_PARAMETERS}) Item(edit).ReadLeftToRight();
  return CTrackedPage::OnInitDialog();
}

void CActionPage::DoDataExchange(CDataExchange& exchange) {
  if (exchange.IsSaving() && !ValidateProgram(exchange)) return;
  exchange.CheckBit(IDC_ACTION_VIEWER, startAction, kStartViewer);
  exchange.CheckBit(IDC_ACTION_PROGRAM_CHECK, startAction, kStartProgram);
  exchange.Text(IDC_ACTION_PROGRAM, startProgram, kProgramLimit);
  exchange.Text(IDC_ACTION_PARAMETERS, startProgramParameters, kParametersLimit);
  if (exchange.IsLoading()) UpdateControls();
}

// A program that is to be started and can be named has to be named.
bool CActionPage::ValidateProgram(CDataExchange& exchange) {
  if (!IsMissing(IDC_ACTION_PROGRAM)) return true;
  Tell(MSG_ACTION_INVALID_PROGRAM, MB_OK | MB_ICONEXCLAMATION);
  exchange.Fail(IDC_ACTION_PROGRAM);
  return false;
}

void CActionPage::OnProgramCheck() {
  const bool on = IsChecked(IDC_ACTION_PROGRAM_CHECK) && !programCheckOverride.IsSet();
  EnableControls({IDC_ACTION_PROGRAM, IDC_ACTION_PARAMETERS, IDC_ACTION_BROWSE}, on);
  Lock(programCheckOverride.IsSet(), {IDC_ACTION_PROGRAM_CHECK});
  Lock(programOverride.IsSet(), {IDC_ACTION_BROWSE, IDC_ACTION_PROGRAM});
  Lock(parametersOverride.IsSet(), {IDC_ACTION_PARAMETERS});
}

void CActionPage::OnBrowseProgram() {
  const CActivationScope look;
  const auto chosen = AskForFileToOpen(Handle(), {.filter = MessageText(MSG_ACTION_PROGRAM_FILTER),
                                                  .pathRoom = kProgramLimit + 1,
                                                  .startName = Item(IDC_ACTION_PROGRAM).Text()});
  if (chosen) Item(IDC_ACTION_PROGRAM).SetText(chosen->path.Text());
}

void CActionPage::UpdateControls() {
  if (globalTab) EnableAll(true);
  ApplyViewerOverride();
  OnProgramCheck();
  Lock(printOutput & kHostHandlesOutput, {IDC_ACTION_VIEWER, IDC_ACTION_PROGRAM_CHECK, IDC_ACTION_BROWSE,
                                          IDC_ACTION_PROGRAM, IDC_ACTION_PARAMETERS_LABEL, IDC_ACTION_PARAMETERS});
  if (!globalTab) EnableAll(false);
}

void CActionPage::ApplyViewerOverride() { Lock(viewerCheckOverride.IsSet(), {IDC_ACTION_VIEWER}); }
