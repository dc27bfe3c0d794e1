// The object by which a screen reader asks a control that draws itself. Made and cut off by CAccessibility; readers may
// keep it for longer than the control lives, and are told then that nobody is there.
//
// A reader calls on any thread: in a multithreaded apartment nobody brings its calls to the thread of the window. The
// control is asked on that thread alone, as its windows and texts demand.
#pragma once

#include <atomic>
#include <functional>

#include "window/CAccessibility.h"
// behind Windows.h
#include <oleacc.h>

// Objects of COM are never destroyed through an interface, so interfaces have no virtual destructor.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wnon-virtual-dtor"

class CAccessibleObject final : public IAccessible {
 public:
  // The first reference is the caller's.
  explicit CAccessibleObject(CAccessibleSource& source)
      : source_(&source), window_(source.AccessibleWindow()), thread_(::GetCurrentThreadId()) {}

  // The control is gone, or is about to go.
  void Disconnect() { source_ = nullptr; }
  // Answers the question that another thread has brought to the control's window, if there is one.
  void AnswerCarried();

  STDMETHODIMP QueryInterface(REFIID id, void** object) override;
  STDMETHODIMP_(ULONG) AddRef() override { return ++references_; }
  STDMETHODIMP_(ULONG) Release() override;

  // Readers call the functions of IAccessible; nobody needs them by name.
  STDMETHODIMP GetTypeInfoCount(UINT*) override { return E_NOTIMPL; }
  STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
  STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override { return E_NOTIMPL; }
  STDMETHODIMP Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*, UINT*) override {
    return E_NOTIMPL;
  }

  STDMETHODIMP get_accParent(IDispatch** parent) override;
  STDMETHODIMP get_accChildCount(LONG* count) override;
  STDMETHODIMP get_accChild(VARIANT child, IDispatch** object) override;
  STDMETHODIMP get_accName(VARIANT child, BSTR* name) override;
  STDMETHODIMP get_accValue(VARIANT child, BSTR* value) override;
  STDMETHODIMP get_accRole(VARIANT child, VARIANT* role) override;
  STDMETHODIMP get_accState(VARIANT child, VARIANT* state) override;
  STDMETHODIMP get_accFocus(VARIANT* child) override;
  STDMETHODIMP get_accSelection(VARIANT* child) override;
  STDMETHODIMP get_accDefaultAction(VARIANT child, BSTR* action) override;
  STDMETHODIMP accSelect(LONG flags, VARIANT child) override;
  STDMETHODIMP accLocation(LONG* left, LONG* top, LONG* width, LONG* height, VARIANT child) override;
  STDMETHODIMP accNavigate(LONG direction, VARIANT start, VARIANT* end) override;
  STDMETHODIMP accHitTest(LONG left, LONG top, VARIANT* child) override;
  STDMETHODIMP accDoDefaultAction(VARIANT child) override;

  STDMETHODIMP get_accDescription(VARIANT, BSTR*) override { return DISP_E_MEMBERNOTFOUND; }
  STDMETHODIMP get_accHelp(VARIANT, BSTR*) override { return DISP_E_MEMBERNOTFOUND; }
  STDMETHODIMP get_accHelpTopic(BSTR*, VARIANT, LONG*) override { return DISP_E_MEMBERNOTFOUND; }
  STDMETHODIMP get_accKeyboardShortcut(VARIANT, BSTR*) override { return DISP_E_MEMBERNOTFOUND; }
  STDMETHODIMP put_accName(VARIANT, BSTR) override { return DISP_E_MEMBERNOTFOUND; }
  STDMETHODIMP put_accValue(VARIANT, BSTR) override { return DISP_E_MEMBERNOTFOUND; }

 private:
  ~CAccessibleObject() = default;

  struct Carried {
    const std::function<HRESULT()>& question;
    HRESULT answer;
  };

  // Puts a question to the control, unless it is gone; AskPart for a part that the reader names.
  template <class Question>
  HRESULT Ask(Question question);
  template <class Question>
  HRESULT AskPart(const VARIANT& child, Question question);
  HRESULT CarryToWindow(const std::function<HRESULT()>& question);
  HRESULT Text(const VARIANT& child, BSTR* text, CUString (CAccessibleSource::*get)(int) const);

  HWND Window() const { return source_->AccessibleWindow(); }
  RECT ScreenRect(int part) const;

  std::atomic<ULONG> references_{1};
  CAccessibleSource* source_;  // null once the control is gone; for the window's thread only
  const HWND window_;
  const DWORD thread_;  // the window's
  SRWLOCK carrying_ = SRWLOCK_INIT;
  std::atomic<Carried*> carried_{nullptr};
};

#pragma GCC diagnostic pop
