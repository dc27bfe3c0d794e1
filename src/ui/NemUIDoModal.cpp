// The modal run: the host's values go into a sheet's working copy, and come back when the user has accepted them.
#include "DriverLIB/ModuleState.h"
#include "NemPdfUI.h"
#include "sheet/CNemUISheet.h"
#include "ui/PageCatalogue.h"
#include "ui/PropertyAccess.h"

namespace {

constexpr int kInvalidHandle = -1;

// While a dialog's sheet runs, the host can neither free the object nor run it a second time.
class RunningScope {
 public:
  explicit RunningScope(CDialogProperties& dialog) : dialog_(dialog) { dialog_.running = true; }
  ~RunningScope() { dialog_.running = false; }
  RunningScope(const RunningScope&) = delete;
  RunningScope& operator=(const RunningScope&) = delete;

 private:
  CDialogProperties& dialog_;
};

// The property is a 32-bit number; a window handle is its widening with the sign.
HWND OwnerOf(const CDialogProperties& dialog) {
  return reinterpret_cast<HWND>(static_cast<INT_PTR>(dialog.HwndParent.GetLong()));
}

}  // namespace

int NemPdfUIDoModal(NemPdfUIHandle handle) {
  if (!EnterThread()) return 0;
  CDialogProperties* dialog = DialogFromHandle(handle);
  if (!dialog) return kInvalidHandle;
  if (dialog->running) return 0;
  const RunningScope running(*dialog);
  CNemUISheet sheet(AllPages());
  CopyAllSets(sheet.Properties(), *dialog);
  const INT_PTR result = sheet.Run(OwnerOf(*dialog));
  if (result != 0) CopyAllSets(*dialog, sheet.Properties());
  return static_cast<int>(result);
}
