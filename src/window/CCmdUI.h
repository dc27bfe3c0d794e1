// A probe by which a bar asks its owner how the entry `Id()` stands (kUpdateCommandMessage). The owner answers by
// calling what applies; what it does not call leaves the entry as it is.
#pragma once

class CCmdUI {
 public:
  explicit CCmdUI(int id) : id_(id) {}
  CCmdUI(const CCmdUI&) = delete;
  CCmdUI& operator=(const CCmdUI&) = delete;
  virtual ~CCmdUI() = default;

  int Id() const { return id_; }

  virtual void Enable(bool) {}
  virtual void SetCheck(bool) {}
  virtual void SetRadio(bool) {}
  virtual void SetText(const wchar_t*) {}

 private:
  const int id_;
};
