#include "window/CAccessibleObject.h"

#include <new>

#include "window/SystemFunction.h"

namespace {

// oleaut32.dll and oleacc.dll are bound when the first reader asks: hardly a process meets one.
BSTR NewBstr(const CUString& text) {
  static const auto allocate = SystemFunction<decltype(::SysAllocStringLen)>(L"oleaut32.dll", "SysAllocStringLen");
  return allocate ? allocate(text.Text(), static_cast<UINT>(text.Length())) : nullptr;
}

void SetNumber(VARIANT& value, LONG number) {
  value.vt = VT_I4;
  value.lVal = number;
}

}  // namespace

// --- Asking --------------------------------------------------------------------------------------------------------

// Nothing that a question throws leaves the object.
template <class Question>
HRESULT CAccessibleObject::Ask(Question question) {
  const auto guarded = [&]() -> HRESULT {
    if (!source_ || !Window()) return CO_E_OBJNOTCONNECTED;
    try {
      return question();
    } catch (const std::bad_alloc&) {
      return E_OUTOFMEMORY;
    } catch (...) {
      return E_FAIL;
    }
  };
  return ::GetCurrentThreadId() == thread_ ? guarded() : CarryToWindow(std::cref(guarded));
}

// One question at a time. The message says only that there is one: any program can send it. A window that is gone
// takes no message, and the question has its answer.
HRESULT CAccessibleObject::CarryToWindow(const std::function<HRESULT()>& question) {
  if (::GetWindowThreadProcessId(window_, nullptr) != thread_) return CO_E_OBJNOTCONNECTED;
  Carried carried{question, CO_E_OBJNOTCONNECTED};
  ::AcquireSRWLockExclusive(&carrying_);
  carried_ = &carried;
  ::SendMessageW(window_, kAccessibleQuestionMessage, 0, 0);
  carried_ = nullptr;
  ::ReleaseSRWLockExclusive(&carrying_);
  return carried.answer;
}

void CAccessibleObject::AnswerCarried() {
  if (Carried* carried = carried_.exchange(nullptr)) carried->answer = carried->question();
}

template <class Question>
HRESULT CAccessibleObject::AskPart(const VARIANT& child, Question question) {
  return Ask([&]() -> HRESULT {
    if (child.vt != VT_I4 || child.lVal < CAccessibleSource::kSelf || child.lVal > source_->PartCount())
      return E_INVALIDARG;
    return question(static_cast<int>(child.lVal));
  });
}

HRESULT CAccessibleObject::Text(const VARIANT& child, BSTR* text, CUString (CAccessibleSource::*get)(int) const) {
  if (!text) return E_POINTER;
  *text = nullptr;
  return AskPart(child, [&](int part) -> HRESULT {
    const CUString found = (source_->*get)(part);
    if (found.IsEmpty()) return S_FALSE;
    *text = NewBstr(found);
    return *text ? S_OK : E_OUTOFMEMORY;
  });
}

RECT CAccessibleObject::ScreenRect(int part) const {
  RECT rect{};
  if (part == CAccessibleSource::kSelf) {
    ::GetWindowRect(Window(), &rect);
    return rect;
  }
  rect = source_->PartRect(part);
  // Two points are taken for a rectangle: in a mirrored window, too, left stays left of right.
  ::MapWindowPoints(Window(), nullptr, reinterpret_cast<POINT*>(&rect), 2);
  return rect;
}

// --- IUnknown ------------------------------------------------------------------------------------------------------

STDMETHODIMP CAccessibleObject::QueryInterface(REFIID id, void** object) {
  if (!object) return E_POINTER;
  *object = nullptr;
  if (id != __uuidof(IUnknown) && id != __uuidof(IDispatch) && id != __uuidof(IAccessible)) return E_NOINTERFACE;
  *object = static_cast<IAccessible*>(this);
  AddRef();
  return S_OK;
}

STDMETHODIMP_(ULONG) CAccessibleObject::Release() {
  const ULONG left = --references_;
  if (left == 0) delete this;
  return left;
}

// --- IAccessible ---------------------------------------------------------------------------------------------------

STDMETHODIMP CAccessibleObject::get_accName(VARIANT child, BSTR* name) {
  return Text(child, name, &CAccessibleSource::PartName);
}

STDMETHODIMP CAccessibleObject::get_accValue(VARIANT child, BSTR* value) {
  return Text(child, value, &CAccessibleSource::PartValue);
}

STDMETHODIMP CAccessibleObject::get_accDefaultAction(VARIANT child, BSTR* action) {
  return Text(child, action, &CAccessibleSource::PartAction);
}

STDMETHODIMP CAccessibleObject::get_accParent(IDispatch** parent) {
  if (!parent) return E_POINTER;
  *parent = nullptr;
  return Ask([&]() -> HRESULT {
    static const auto objectOf =
        SystemFunction<decltype(::AccessibleObjectFromWindow)>(L"oleacc.dll", "AccessibleObjectFromWindow");
    if (!objectOf) return S_FALSE;
    // The client area's parent is the window that frames it.
    return objectOf(Window(), static_cast<DWORD>(OBJID_WINDOW), __uuidof(IDispatch), reinterpret_cast<void**>(parent));
  });
}

STDMETHODIMP CAccessibleObject::get_accChildCount(LONG* count) {
  if (!count) return E_POINTER;
  *count = 0;
  return Ask([&]() -> HRESULT {
    *count = source_->PartCount();
    return S_OK;
  });
}

STDMETHODIMP CAccessibleObject::get_accChild(VARIANT child, IDispatch** object) {
  if (!object) return E_POINTER;
  *object = nullptr;
  return AskPart(child, [&](int part) -> HRESULT {
    if (part != CAccessibleSource::kSelf) return S_FALSE;  // a plain part: its parent answers for it
    AddRef();
    *object = this;
    return S_OK;
  });
}

STDMETHODIMP CAccessibleObject::get_accRole(VARIANT child, VARIANT* role) {
  if (!role) return E_POINTER;
  role->vt = VT_EMPTY;
  return AskPart(child, [&](int part) -> HRESULT {
    SetNumber(*role, source_->PartRole(part));
    return S_OK;
  });
}

STDMETHODIMP CAccessibleObject::get_accState(VARIANT child, VARIANT* state) {
  if (!state) return E_POINTER;
  state->vt = VT_EMPTY;
  return AskPart(child, [&](int part) -> HRESULT {
    LONG bits = source_->PartState(part);
    const bool isFocused = ::GetFocus() == Window();
    if (part == CAccessibleSource::kSelf) {
      bits |= STATE_SYSTEM_FOCUSABLE;
      if (!::IsWindowVisible(Window())) bits |= STATE_SYSTEM_INVISIBLE;
      if (!::IsWindowEnabled(Window())) bits |= STATE_SYSTEM_UNAVAILABLE;
    }
    if (isFocused && source_->FocusedPart() == part) bits |= STATE_SYSTEM_FOCUSED;
    SetNumber(*state, bits);
    return S_OK;
  });
}

STDMETHODIMP CAccessibleObject::get_accFocus(VARIANT* child) {
  if (!child) return E_POINTER;
  child->vt = VT_EMPTY;
  return Ask([&]() -> HRESULT {
    if (::GetFocus() != Window()) return S_FALSE;
    SetNumber(*child, source_->FocusedPart());
    return S_OK;
  });
}

STDMETHODIMP CAccessibleObject::get_accSelection(VARIANT* children) {
  if (!children) return E_POINTER;
  children->vt = VT_EMPTY;
  return Ask([&]() -> HRESULT {
    for (int part = 1; part <= source_->PartCount(); ++part)
      if (source_->PartState(part) & STATE_SYSTEM_SELECTED) {
        SetNumber(*children, part);
        return S_OK;
      }
    return S_FALSE;
  });
}

STDMETHODIMP CAccessibleObject::accSelect(LONG flags, VARIANT child) {
  return AskPart(child, [&](int part) -> HRESULT {
    if (flags & ~(SELFLAG_TAKEFOCUS | SELFLAG_TAKESELECTION)) return E_INVALIDARG;
    if (flags & SELFLAG_TAKEFOCUS) {
      if (!CanBeUsed(Window())) return S_FALSE;
      // Whoever loses the focus, and whoever gets it, may end the control or take the part away.
      ::SetFocus(Window());
      if (!source_) return CO_E_OBJNOTCONNECTED;
      if (part > source_->PartCount()) return E_INVALIDARG;
      if (part != CAccessibleSource::kSelf) source_->FocusPart(part);
      if (!source_) return CO_E_OBJNOTCONNECTED;
      if (part > source_->PartCount()) return E_INVALIDARG;
    }
    if ((flags & SELFLAG_TAKESELECTION) && source_->HasPartAction(part))
      ::PostMessageW(Window(), kAccessibleActionMessage, static_cast<WPARAM>(part), 0);
    return S_OK;
  });
}

STDMETHODIMP CAccessibleObject::accLocation(LONG* left, LONG* top, LONG* width, LONG* height, VARIANT child) {
  if (!left || !top || !width || !height) return E_POINTER;
  *left = *top = *width = *height = 0;
  return AskPart(child, [&](int part) -> HRESULT {
    const RECT rect = ScreenRect(part);
    *left = rect.left;
    *top = rect.top;
    *width = rect.right - rect.left;
    *height = rect.bottom - rect.top;
    return S_OK;
  });
}

STDMETHODIMP CAccessibleObject::accNavigate(LONG direction, VARIANT start, VARIANT* end) {
  if (!end) return E_POINTER;
  end->vt = VT_EMPTY;
  return AskPart(start, [&](int part) -> HRESULT {
    const bool isSelf = part == CAccessibleSource::kSelf;
    int target = 0;
    switch (direction) {
      case NAVDIR_FIRSTCHILD:
        target = isSelf ? 1 : 0;
        break;
      case NAVDIR_LASTCHILD:
        target = isSelf ? source_->PartCount() : 0;
        break;
      case NAVDIR_NEXT:
      case NAVDIR_DOWN:
        target = isSelf ? 0 : part + 1;
        break;
      case NAVDIR_PREVIOUS:
      case NAVDIR_UP:
        target = isSelf ? 0 : part - 1;
        break;
      default:
        break;
    }
    if (target < 1 || target > source_->PartCount()) return S_FALSE;
    SetNumber(*end, target);
    return S_OK;
  });
}

STDMETHODIMP CAccessibleObject::accHitTest(LONG left, LONG top, VARIANT* child) {
  if (!child) return E_POINTER;
  child->vt = VT_EMPTY;
  return Ask([&]() -> HRESULT {
    const POINT point{left, top};
    RECT rect = ScreenRect(CAccessibleSource::kSelf);
    if (!::PtInRect(&rect, point)) return S_FALSE;
    SetNumber(*child, CAccessibleSource::kSelf);
    for (int part = 1; part <= source_->PartCount(); ++part) {
      rect = ScreenRect(part);
      if (::PtInRect(&rect, point)) SetNumber(*child, part);
    }
    return S_OK;
  });
}

STDMETHODIMP CAccessibleObject::accDoDefaultAction(VARIANT child) {
  return AskPart(child, [&](int part) -> HRESULT {
    if (!source_->HasPartAction(part)) return DISP_E_MEMBERNOTFOUND;
    ::PostMessageW(Window(), kAccessibleActionMessage, static_cast<WPARAM>(part), 0);
    return S_OK;
  });
}
