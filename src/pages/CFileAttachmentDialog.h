// The files that are attached to a PDF, with the list that shows them. A page has it for a second base: in spite of its
// name, which the trace knows, it is no window of its own.
#pragma once

#include "controls/CListBoxST.h"
#include "DriverLIB/CUStringArray.h"
#include "window/CDataExchange.h"

class CFileAttachmentDialog {
 public:
  // With `checkFiles` the list marks files that are not there. Both pages want it.
  explicit CFileAttachmentDialog(bool checkFiles) : checkFiles_(checkFiles) {}

  CUString embedFilenames;              // the list of files (pages/EmbedFilenames.h)
  int32_t embedfilenamesConfirmed = 0;  // 0 never, 1 always, 2 when a file is missing
  bool confirmEditable = true;
  int32_t embedfilenamesOpen = 0;
  bool openEditable = true;  // a switch of its own, though today it goes with the one for the confirmation

  bool anyMissing = false;  // at the last loading; none without `checkFiles`. Offered, nobody asks yet

 protected:
  ~CFileAttachmentDialog() = default;

  // Binds the page's list, before the first exchange.
  void AttachList(const CWnd& page);
  // The part of the page's exchange that is the list's.
  void ExchangeAttachments(CDataExchange& exchange);

  // Tells the user when the list is full, which may end the page.
  void AddAttachment(const CUString& path);
  void RemoveSelected();

  CListBoxST attachmentList;

 private:
  void LoadList();
  CUStringArray ListedPaths() const;

  const bool checkFiles_;
  CWnd page_;
  CUString missingMark_;  // as the rows have it, whatever language is chosen meanwhile
};
