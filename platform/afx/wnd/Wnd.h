// CWnd: a window as an object. Create() makes the window, SubclassWindow() takes an existing one over, Attach() and
// FromHandle() only hold it. Messages go WindowProc -> OnWndMsg -> message map -> DefWindowProc; see MessageMap.h.
//
// The default handlers (OnPaint, OnSize ...) repeat the message being dispatched with its own parameters, whatever
// arguments they get: they call Default(). Coordinates are pixels of the client area unless a member says otherwise.
#pragma once

#include "afx/wnd/CmdTarget.h"
#include "afx/wnd/ThreadState.h"

// A macro of this name, taken from 16-bit Windows, would hide the member function.
#undef GetNextWindow

class CDataExchange;
class CDC;
class CFont;
class CFrameWnd;
class CListBox;
class CMenu;
class CRgn;
class CScrollBar;
class CWnd;
struct CCreateContext;

// Bits of CWnd::m_nFlags.
const UINT WF_TOOLTIPS = 0x0001;
const UINT WF_TEMPHIDE = 0x0002;
const UINT WF_STAYDISABLED = 0x0004;
const UINT WF_MODALLOOP = 0x0008;
const UINT WF_CONTINUEMODAL = 0x0010;
const UINT WF_TRACKINGTOOLTIPS = 0x0400;

// Flags of RunModalLoop.
const DWORD MLF_NOIDLEMSG = 0x0001;  // no WM_ENTERIDLE to the parent
const DWORD MLF_NOKICKIDLE = 0x0002; // no WM_KICKIDLE to the window
const DWORD MLF_SHOWONIDLE = 0x0004; // show the window as soon as the queue is empty

class AFX_API CWnd : public CCmdTarget
{
    DECLARE_DYNCREATE(CWnd)

public:
    CWnd();
    explicit CWnd(HWND window); // holds the handle without entering it in the handle map
    ~CWnd() override;           // destroys the window if it still stands

    HWND m_hWnd = nullptr; // must stay the first data member

    // Places of SetWindowPos.
    static const CWnd wndTop;
    static const CWnd wndBottom;
    static const CWnd wndTopMost;
    static const CWnd wndNoTopMost;

    operator HWND() const { return m_hWnd; }
    BOOL operator==(const CWnd& other) const { return other.GetSafeHwnd() == m_hWnd; }
    BOOL operator!=(const CWnd& other) const { return other.GetSafeHwnd() != m_hWnd; }
    HWND GetSafeHwnd() const; // also on a null pointer

    // The object of a window: the permanent one, or a temporary one that lives until the thread is idle. Null for null.
    static CWnd* PASCAL FromHandle(HWND window);
    static CWnd* PASCAL FromHandlePermanent(HWND window);
    static void PASCAL DeleteTempMap();
    BOOL Attach(HWND window); // FALSE for a null handle
    HWND Detach();

    // Creation. PreSubclassWindow() runs before the window gets its first message.
    virtual BOOL Create(LPCTSTR className, LPCTSTR windowName, DWORD style, const RECT& rect, CWnd* parent, UINT id,
                        CCreateContext* context = nullptr);
    BOOL CreateEx(DWORD exStyle, LPCTSTR className, LPCTSTR windowName, DWORD style, int x, int y, int width,
                  int height, HWND parent, HMENU idOrMenu, LPVOID param = nullptr);
    virtual BOOL CreateEx(DWORD exStyle, LPCTSTR className, LPCTSTR windowName, DWORD style, const RECT& rect,
                          CWnd* parent, UINT id, LPVOID param = nullptr);
    virtual BOOL PreCreateWindow(CREATESTRUCT& create); // FALSE: no window
    virtual BOOL DestroyWindow();
    virtual void PreSubclassWindow();
    BOOL SubclassWindow(HWND window);
    BOOL SubclassDlgItem(UINT id, CWnd* parent); // FALSE: the parent has no such item
    HWND UnsubclassWindow();                     // gives the window its former procedure back and detaches

    // Styles and data of the window.
    DWORD GetStyle() const { return static_cast<DWORD>(::GetWindowLongPtr(m_hWnd, GWL_STYLE)); }
    DWORD GetExStyle() const { return static_cast<DWORD>(::GetWindowLongPtr(m_hWnd, GWL_EXSTYLE)); }
    static BOOL PASCAL ModifyStyle(HWND window, DWORD remove, DWORD add, UINT flags);
    static BOOL PASCAL ModifyStyleEx(HWND window, DWORD remove, DWORD add, UINT flags);
    BOOL ModifyStyle(DWORD remove, DWORD add, UINT flags = 0) { return ModifyStyle(m_hWnd, remove, add, flags); }
    BOOL ModifyStyleEx(DWORD remove, DWORD add, UINT flags = 0) { return ModifyStyleEx(m_hWnd, remove, add, flags); }
    int GetDlgCtrlID() const { return ::GetDlgCtrlID(m_hWnd); }
    int SetDlgCtrlID(int id) { return static_cast<int>(::SetWindowLongPtr(m_hWnd, GWLP_ID, id)); }
    BOOL IsWindowUnicode() const { return ::IsWindowUnicode(m_hWnd); }
    HICON SetIcon(HICON icon, BOOL big) { return reinterpret_cast<HICON>(SendMessage(WM_SETICON, big, LPARAM(icon))); }
    HICON GetIcon(BOOL big) const { return reinterpret_cast<HICON>(SendMessage(WM_GETICON, big)); }

    // Messages.
    LRESULT SendMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const
    {
        return ::SendMessage(m_hWnd, message, wParam, lParam);
    }
    BOOL PostMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const
    {
        return ::PostMessage(m_hWnd, message, wParam, lParam);
    }
    BOOL SendNotifyMessage(UINT message, WPARAM wParam, LPARAM lParam) const
    {
        return ::SendNotifyMessage(m_hWnd, message, wParam, lParam);
    }
    void SendMessageToDescendants(UINT message, WPARAM wParam = 0, LPARAM lParam = 0, BOOL deep = TRUE,
                                  BOOL onlyPermanent = FALSE);
    static void PASCAL SendMessageToDescendants(HWND window, UINT message, WPARAM wParam, LPARAM lParam, BOOL deep,
                                                BOOL onlyPermanent);
    static const MSG* PASCAL GetCurrentMessage();

    // Text and font. The font stays the caller's.
    void SetWindowText(LPCTSTR text);
    int GetWindowText(LPTSTR text, int maxCount) const { return ::GetWindowText(m_hWnd, text, maxCount); }
    void GetWindowText(CString& text) const;
    int GetWindowTextLength() const { return ::GetWindowTextLength(m_hWnd); }
    void SetFont(CFont* font, BOOL redraw = TRUE);
    CFont* GetFont() const;

    // Menu.
    CMenu* GetMenu() const;
    BOOL SetMenu(CMenu* menu);
    void DrawMenuBar() { ::DrawMenuBar(m_hWnd); }
    CMenu* GetSystemMenu(BOOL revert) const;

    // Size and position; in the parent's client area for children, on the screen for others.
    BOOL IsIconic() const { return ::IsIconic(m_hWnd); }
    BOOL IsZoomed() const { return ::IsZoomed(m_hWnd); }
    void MoveWindow(int x, int y, int width, int height, BOOL repaint = TRUE);
    void MoveWindow(LPCRECT rect, BOOL repaint = TRUE);
    BOOL SetWindowPos(const CWnd* insertAfter, int x, int y, int cx, int cy, UINT flags);
    BOOL GetWindowPlacement(WINDOWPLACEMENT* placement) const;
    BOOL SetWindowPlacement(const WINDOWPLACEMENT* placement) { return ::SetWindowPlacement(m_hWnd, placement); }
    UINT ArrangeIconicWindows() { return ::ArrangeIconicWindows(m_hWnd); }
    void BringWindowToTop() { ::BringWindowToTop(m_hWnd); }
    void GetWindowRect(LPRECT rect) const { ::GetWindowRect(m_hWnd, rect); }
    void GetClientRect(LPRECT rect) const { ::GetClientRect(m_hWnd, rect); }
    int SetWindowRgn(HRGN region, BOOL redraw) { return ::SetWindowRgn(m_hWnd, region, redraw); }
    int GetWindowRgn(HRGN region) const { return ::GetWindowRgn(m_hWnd, region); }
    void CalcWindowRect(LPRECT clientRect, UINT adjustType = adjustBorder); // client rectangle to window rectangle
    enum AdjustType
    {
        adjustBorder = 0,
        adjustOutside = 1
    };
    void CenterWindow(CWnd* alternate = nullptr); // over the owner or parent, inside the work area of its monitor

    void ClientToScreen(LPPOINT point) const { ::ClientToScreen(m_hWnd, point); }
    void ClientToScreen(LPRECT rect) const { ::MapWindowPoints(m_hWnd, nullptr, reinterpret_cast<POINT*>(rect), 2); }
    void ScreenToClient(LPPOINT point) const { ::ScreenToClient(m_hWnd, point); }
    void ScreenToClient(LPRECT rect) const { ::MapWindowPoints(nullptr, m_hWnd, reinterpret_cast<POINT*>(rect), 2); }
    void MapWindowPoints(CWnd* to, LPPOINT points, UINT count) const;
    void MapWindowPoints(CWnd* to, LPRECT rect) const;

    // Bars of a frame. The bars of ids idFirst..idLast take their edges of the client area, the window idLeftOver gets
    // what is left. reposQuery only computes it into param, reposExtra leaves the border rectangle param free.
    enum RepositionFlags
    {
        reposDefault = 0,
        reposQuery = 1,
        reposExtra = 2
    };
    void RepositionBars(UINT idFirst, UINT idLast, UINT idLeftOver, UINT flags = reposDefault, LPRECT param = nullptr,
                        LPCRECT client = nullptr, BOOL stretch = TRUE);

    // Painting. The DC of GetDC and its kin is temporary; give it back with ReleaseDC.
    CDC* BeginPaint(LPPAINTSTRUCT paint);
    void EndPaint(LPPAINTSTRUCT paint) { ::EndPaint(m_hWnd, paint); }
    CDC* GetDC();
    CDC* GetWindowDC();
    CDC* GetDCEx(CRgn* clip, DWORD flags);
    int ReleaseDC(CDC* dc);
    void Print(CDC* dc, DWORD flags) const;
    void PrintClient(CDC* dc, DWORD flags) const;
    void UpdateWindow() { ::UpdateWindow(m_hWnd); }
    void SetRedraw(BOOL redraw = TRUE) { SendMessage(WM_SETREDRAW, redraw); }
    BOOL GetUpdateRect(LPRECT rect, BOOL erase = FALSE) { return ::GetUpdateRect(m_hWnd, rect, erase); }
    int GetUpdateRgn(CRgn* region, BOOL erase = FALSE);
    void Invalidate(BOOL erase = TRUE) { ::InvalidateRect(m_hWnd, nullptr, erase); }
    void InvalidateRect(LPCRECT rect, BOOL erase = TRUE) { ::InvalidateRect(m_hWnd, rect, erase); }
    void InvalidateRgn(CRgn* region, BOOL erase = TRUE);
    void ValidateRect(LPCRECT rect) { ::ValidateRect(m_hWnd, rect); }
    void ValidateRgn(CRgn* region);
    BOOL ShowWindow(int show) { return ::ShowWindow(m_hWnd, show); }
    BOOL IsWindowVisible() const { return ::IsWindowVisible(m_hWnd); }
    void ShowOwnedPopups(BOOL show = TRUE) { ::ShowOwnedPopups(m_hWnd, show); }
    BOOL RedrawWindow(LPCRECT rect = nullptr, CRgn* region = nullptr,
                      UINT flags = RDW_INVALIDATE | RDW_UPDATENOW | RDW_ERASE);
    BOOL LockWindowUpdate() { return ::LockWindowUpdate(m_hWnd); }
    void UnlockWindowUpdate() { ::LockWindowUpdate(nullptr); }
    BOOL AnimateWindow(DWORD time, DWORD flags) { return ::AnimateWindow(m_hWnd, time, flags); }
    BOOL SetLayeredWindowAttributes(COLORREF key, BYTE alpha, DWORD flags)
    {
        return ::SetLayeredWindowAttributes(m_hWnd, key, alpha, flags);
    }

    // Timer, state, focus, mouse.
    UINT_PTR SetTimer(UINT_PTR id, UINT milliseconds, TIMERPROC procedure)
    {
        return ::SetTimer(m_hWnd, id, milliseconds, procedure);
    }
    BOOL KillTimer(UINT_PTR id) { return ::KillTimer(m_hWnd, id); }
    BOOL IsWindowEnabled() const { return ::IsWindowEnabled(m_hWnd); }
    BOOL EnableWindow(BOOL enable = TRUE) { return ::EnableWindow(m_hWnd, enable); }
    static CWnd* PASCAL GetActiveWindow() { return FromHandle(::GetActiveWindow()); }
    CWnd* SetActiveWindow() { return FromHandle(::SetActiveWindow(m_hWnd)); }
    BOOL SetForegroundWindow() { return ::SetForegroundWindow(m_hWnd); }
    static CWnd* PASCAL GetForegroundWindow() { return FromHandle(::GetForegroundWindow()); }
    static CWnd* PASCAL GetCapture() { return FromHandle(::GetCapture()); }
    CWnd* SetCapture() { return FromHandle(::SetCapture(m_hWnd)); }
    static CWnd* PASCAL GetFocus() { return FromHandle(::GetFocus()); }
    CWnd* SetFocus() { return FromHandle(::SetFocus(m_hWnd)); }
    static CWnd* PASCAL GetDesktopWindow() { return FromHandle(::GetDesktopWindow()); }
    BOOL FlashWindow(BOOL invert) { return ::FlashWindow(m_hWnd, invert); }
    int MessageBox(LPCTSTR text, LPCTSTR caption = nullptr, UINT type = MB_OK); // caption: the program's name
    BOOL IsChild(const CWnd* window) const { return ::IsChild(m_hWnd, window->GetSafeHwnd()); }
    void DragAcceptFiles(BOOL accept = TRUE) { ::DragAcceptFiles(m_hWnd, accept); }

    // Caret.
    void CreateSolidCaret(int width, int height) { ::CreateCaret(m_hWnd, nullptr, width, height); }
    void CreateGrayCaret(int width, int height) { ::CreateCaret(m_hWnd, HBITMAP(1), width, height); }
    static CPoint PASCAL GetCaretPos();
    static void PASCAL SetCaretPos(POINT point) { ::SetCaretPos(point.x, point.y); }
    void HideCaret() { ::HideCaret(m_hWnd); }
    void ShowCaret() { ::ShowCaret(m_hWnd); }

    // Clipboard.
    BOOL OpenClipboard() { return ::OpenClipboard(m_hWnd); }
    static CWnd* PASCAL GetClipboardOwner() { return FromHandle(::GetClipboardOwner()); }
    static CWnd* PASCAL GetOpenClipboardWindow() { return FromHandle(::GetOpenClipboardWindow()); }

    // Scroll bars of the window, or the scroll bar control that stands for one (GetScrollBarCtrl).
    virtual CScrollBar* GetScrollBarCtrl(int bar) const;
    int GetScrollPos(int bar) const;
    int SetScrollPos(int bar, int position, BOOL redraw = TRUE);
    void GetScrollRange(int bar, LPINT least, LPINT most) const;
    void SetScrollRange(int bar, int least, int most, BOOL redraw = TRUE);
    BOOL GetScrollInfo(int bar, LPSCROLLINFO info, UINT mask = SIF_ALL);
    BOOL SetScrollInfo(int bar, LPSCROLLINFO info, BOOL redraw = TRUE);
    int GetScrollLimit(int bar);
    void ShowScrollBar(UINT bar, BOOL show = TRUE) { ::ShowScrollBar(m_hWnd, bar, show); }
    void EnableScrollBarCtrl(int bar, BOOL enable = TRUE);
    BOOL EnableScrollBar(int bar, UINT arrows = ESB_ENABLE_BOTH) { return ::EnableScrollBar(m_hWnd, bar, arrows); }
    void ScrollWindow(int dx, int dy, LPCRECT rect = nullptr, LPCRECT clip = nullptr);
    int ScrollWindowEx(int dx, int dy, LPCRECT scroll, LPCRECT clip, CRgn* update, LPRECT updateRect, UINT flags);

    // Items of a dialog. GetDlgItem gives null when there is no such item.
    CWnd* GetDlgItem(int id) const { return FromHandle(::GetDlgItem(m_hWnd, id)); }
    void GetDlgItem(int id, HWND* item) const { *item = ::GetDlgItem(m_hWnd, id); }
    UINT GetDlgItemInt(int id, BOOL* translated = nullptr, BOOL isSigned = TRUE) const
    {
        return ::GetDlgItemInt(m_hWnd, id, translated, isSigned);
    }
    void SetDlgItemInt(int id, UINT value, BOOL isSigned = TRUE) { ::SetDlgItemInt(m_hWnd, id, value, isSigned); }
    int GetDlgItemText(int id, LPTSTR text, int maxCount) const
    {
        return static_cast<int>(::GetDlgItemText(m_hWnd, id, text, maxCount));
    }
    int GetDlgItemText(int id, CString& text) const;
    void SetDlgItemText(int id, LPCTSTR text) { ::SetDlgItemText(m_hWnd, id, text); }
    LRESULT SendDlgItemMessage(int id, UINT message, WPARAM wParam = 0, LPARAM lParam = 0)
    {
        return ::SendDlgItemMessage(m_hWnd, id, message, wParam, lParam);
    }
    void CheckDlgButton(int id, UINT check) { ::CheckDlgButton(m_hWnd, id, check); }
    void CheckRadioButton(int first, int last, int id) { ::CheckRadioButton(m_hWnd, first, last, id); }
    UINT IsDlgButtonChecked(int id) const { return ::IsDlgButtonChecked(m_hWnd, id); }
    int GetCheckedRadioButton(int first, int last) const; // 0: none
    CWnd* GetNextDlgTabItem(CWnd* control, BOOL previous = FALSE) const;
    CWnd* GetNextDlgGroupItem(CWnd* control, BOOL previous = FALSE) const;
    BOOL UpdateData(BOOL saveAndValidate = TRUE); // FALSE: a value is wrong; the user has been told
    BOOL ExecuteDlgInit(LPCTSTR resourceName);    // fills list and combo boxes from the RT_DLGINIT resource
    BOOL ExecuteDlgInit(LPVOID resource);
    void UpdateDialogControls(CCmdTarget* target, BOOL disableIfNoHandler);

    // Relations.
    CWnd* GetParent() const { return FromHandle(::GetParent(m_hWnd)); }
    CWnd* SetParent(CWnd* parent) { return FromHandle(::SetParent(m_hWnd, parent->GetSafeHwnd())); }
    CWnd* GetWindow(UINT relation) const { return FromHandle(::GetWindow(m_hWnd, relation)); }
    CWnd* GetNextWindow(UINT relation = GW_HWNDNEXT) const { return FromHandle(::GetWindow(m_hWnd, relation)); }
    CWnd* GetTopWindow() const { return FromHandle(::GetTopWindow(m_hWnd)); }
    CWnd* GetLastActivePopup() const { return FromHandle(::GetLastActivePopup(m_hWnd)); }
    CWnd* GetAncestor(UINT relation) const { return FromHandle(::GetAncestor(m_hWnd, relation)); }
    CWnd* ChildWindowFromPoint(POINT point) const { return FromHandle(::ChildWindowFromPoint(m_hWnd, point)); }
    CWnd* ChildWindowFromPoint(POINT point, UINT flags) const
    {
        return FromHandle(::ChildWindowFromPointEx(m_hWnd, point, flags));
    }
    static CWnd* PASCAL FindWindow(LPCTSTR className, LPCTSTR text)
    {
        return FromHandle(::FindWindow(className, text));
    }
    static CWnd* PASCAL WindowFromPoint(POINT point) { return FromHandle(::WindowFromPoint(point)); }
    CWnd* GetOwner() const; // set by SetOwner, otherwise the parent
    void SetOwner(CWnd* owner) { m_hWndOwner = owner->GetSafeHwnd(); }
    CWnd* GetTopLevelParent() const; // up through owners to the last parent
    CWnd* GetTopLevelOwner() const;
    CWnd* GetParentOwner() const; // the first parent that is no child
    CFrameWnd* GetParentFrame() const;
    CFrameWnd* GetTopLevelFrame() const;
    static CWnd* PASCAL GetSafeOwner(CWnd* parent = nullptr, HWND* topLevel = nullptr);
    static HWND PASCAL GetSafeOwner_(HWND parent, HWND* topLevel);
    BOOL IsTopParentActive() const;
    void ActivateTopLevel();
    virtual BOOL IsFrameWnd() const { return FALSE; }
    CWnd* GetDescendantWindow(int id, BOOL onlyPermanent = FALSE) const;
    static CWnd* PASCAL GetDescendantWindow(HWND window, int id, BOOL onlyPermanent);

    // Modal loop; EndModalLoop ends it with a result. The caller disables the parent before and enables it after.
    int RunModalLoop(DWORD flags = 0);
    virtual BOOL ContinueModal();
    virtual void EndModalLoop(int result);
    BOOL IsDialogMessage(LPMSG message);

    // Message filter: offers the message to the window's object and to those of its parents up to stop.
    virtual BOOL PreTranslateMessage(MSG* message);
    BOOL PreTranslateInput(MSG* message); // keyboard interface of dialogs
    static BOOL PASCAL WalkPreTranslateTree(HWND stop, MSG* message);

    // Tips. OnToolHitTest says which tool lies under the point: fills info, returns its id, or -1.
    BOOL EnableToolTips(BOOL enable = TRUE);
    BOOL EnableTrackingToolTips(BOOL enable = TRUE);
    static void PASCAL CancelToolTips(BOOL keys = FALSE);
    void FilterToolTipMessage(MSG* message);
    virtual INT_PTR OnToolHitTest(CPoint point, TOOLINFO* info) const;

    // Routing.
    BOOL OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* handlerInfo) override;
    BOOL SendChildNotifyLastMsg(LRESULT* result = nullptr); // offers the message being dispatched to this control
    static BOOL PASCAL ReflectLastMsg(HWND child, LRESULT* result = nullptr);
    LRESULT Default(); // default processing of the message being dispatched
    virtual BOOL CheckAutoCenter() { return TRUE; }
    virtual WNDPROC* GetSuperWndProcAddr();

    void AssertValid() const override;

    UINT m_nFlags = 0; // WF_ bits
    HWND m_hWndOwner = nullptr;
    int m_nModalResult = 0;

protected:
    virtual void DoDataExchange(CDataExchange* exchange);
    virtual BOOL OnCommand(WPARAM wParam, LPARAM lParam);
    virtual BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result);
    virtual BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result); // TRUE: parent stops
    virtual LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam);
    virtual BOOL OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result);
    virtual LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam);
    virtual void PostNcDestroy(); // last call for the object; windows that own themselves delete themselves here
    BOOL ReflectChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result);

    WNDPROC m_pfnSuper = nullptr; // procedure of a subclassed window

    // Default handlers, overridden through message maps (not virtual).
    afx_msg int OnCreate(LPCREATESTRUCT create);
    afx_msg BOOL OnNcCreate(LPCREATESTRUCT create);
    afx_msg void OnDestroy();
    afx_msg void OnNcDestroy();
    afx_msg void OnMove(int x, int y);
    afx_msg void OnSize(UINT type, int cx, int cy);
    afx_msg void OnMoving(UINT side, LPRECT rect);
    afx_msg void OnSizing(UINT side, LPRECT rect);
    afx_msg void OnEnterSizeMove();
    afx_msg void OnExitSizeMove();
    afx_msg void OnWindowPosChanging(WINDOWPOS* position);
    afx_msg void OnWindowPosChanged(WINDOWPOS* position);
    afx_msg void OnGetMinMaxInfo(MINMAXINFO* info);
    afx_msg void OnStyleChanging(int type, LPSTYLESTRUCT style);
    afx_msg void OnStyleChanged(int type, LPSTYLESTRUCT style);
    afx_msg void OnShowWindow(BOOL show, UINT status);
    afx_msg void OnEnable(BOOL enable);
    afx_msg void OnActivate(UINT state, CWnd* other, BOOL minimized);
    afx_msg void OnActivateApp(BOOL active, DWORD thread);
    afx_msg BOOL OnNcActivate(BOOL active);
    afx_msg int OnMouseActivate(CWnd* desktop, UINT hitTest, UINT message);
    afx_msg void OnChildActivate();
    afx_msg void OnSetFocus(CWnd* oldWindow);
    afx_msg void OnKillFocus(CWnd* newWindow);
    afx_msg void OnClose();
    afx_msg BOOL OnQueryEndSession();
    afx_msg void OnEndSession(BOOL ending);
    afx_msg BOOL OnQueryOpen();
    afx_msg HCURSOR OnQueryDragIcon();
    afx_msg void OnCancelMode();
    afx_msg void OnCaptureChanged(CWnd* window);
    afx_msg void OnPaint();
    afx_msg void OnNcPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg void OnNcCalcSize(BOOL calcValidRects, NCCALCSIZE_PARAMS* params);
    afx_msg LRESULT OnNcHitTest(CPoint point);
    afx_msg BOOL OnSetCursor(CWnd* window, UINT hitTest, UINT message);
    afx_msg UINT OnGetDlgCode();
    afx_msg void OnTimer(UINT_PTR id);
    afx_msg void OnSysCommand(UINT id, LPARAM lParam);
    afx_msg void OnHScroll(UINT code, UINT position, CScrollBar* scrollBar);
    afx_msg void OnVScroll(UINT code, UINT position, CScrollBar* scrollBar);
    afx_msg void OnParentNotify(UINT message, LPARAM lParam);
    afx_msg HBRUSH OnCtlColor(CDC* dc, CWnd* control, UINT kind);
    afx_msg void OnDrawItem(int id, LPDRAWITEMSTRUCT drawItem);
    afx_msg void OnMeasureItem(int id, LPMEASUREITEMSTRUCT measureItem);
    afx_msg void OnDeleteItem(int id, LPDELETEITEMSTRUCT deleteItem);
    afx_msg int OnCompareItem(int id, LPCOMPAREITEMSTRUCT compareItem);
    afx_msg int OnCharToItem(UINT key, CListBox* listBox, UINT index);
    afx_msg int OnVKeyToItem(UINT key, CListBox* listBox, UINT index);
    afx_msg void OnInitMenu(CMenu* menu);
    afx_msg void OnInitMenuPopup(CMenu* popup, UINT index, BOOL systemMenu);
    afx_msg void OnUnInitMenuPopup(CMenu* popup, UINT flags);
    afx_msg void OnMenuSelect(UINT itemId, UINT flags, HMENU menu);
    afx_msg LRESULT OnMenuChar(UINT ch, UINT flags, CMenu* menu);
    afx_msg void OnEnterMenuLoop(BOOL trackPopup);
    afx_msg void OnExitMenuLoop(BOOL trackPopup);
    afx_msg void OnEnterIdle(UINT why, CWnd* who);
    afx_msg void OnContextMenu(CWnd* window, CPoint screenPoint);
    afx_msg BOOL OnHelpInfo(HELPINFO* info);
    afx_msg void OnDropFiles(HDROP drop);
    afx_msg BOOL OnCopyData(CWnd* window, COPYDATASTRUCT* data);
    afx_msg void OnMDIActivate(BOOL activate, CWnd* activated, CWnd* deactivated);
    afx_msg void OnKeyDown(UINT key, UINT repeat, UINT flags);
    afx_msg void OnKeyUp(UINT key, UINT repeat, UINT flags);
    afx_msg void OnChar(UINT ch, UINT repeat, UINT flags);
    afx_msg void OnDeadChar(UINT ch, UINT repeat, UINT flags);
    afx_msg void OnSysKeyDown(UINT key, UINT repeat, UINT flags);
    afx_msg void OnSysKeyUp(UINT key, UINT repeat, UINT flags);
    afx_msg void OnSysChar(UINT ch, UINT repeat, UINT flags);
    afx_msg void OnSysDeadChar(UINT ch, UINT repeat, UINT flags);
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnLButtonUp(UINT flags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT flags, CPoint point);
    afx_msg void OnRButtonDown(UINT flags, CPoint point);
    afx_msg void OnRButtonUp(UINT flags, CPoint point);
    afx_msg void OnRButtonDblClk(UINT flags, CPoint point);
    afx_msg void OnMButtonDown(UINT flags, CPoint point);
    afx_msg void OnMButtonUp(UINT flags, CPoint point);
    afx_msg void OnMButtonDblClk(UINT flags, CPoint point);
    afx_msg void OnMouseHover(UINT flags, CPoint point);
    afx_msg void OnMouseLeave();
    afx_msg void OnNcMouseMove(UINT hitTest, CPoint point);
    afx_msg void OnNcLButtonDown(UINT hitTest, CPoint point);
    afx_msg void OnNcLButtonUp(UINT hitTest, CPoint point);
    afx_msg void OnNcLButtonDblClk(UINT hitTest, CPoint point);
    afx_msg void OnNcRButtonDown(UINT hitTest, CPoint point);
    afx_msg void OnNcRButtonUp(UINT hitTest, CPoint point);
    afx_msg void OnNcRButtonDblClk(UINT hitTest, CPoint point);
    afx_msg void OnNcMButtonDown(UINT hitTest, CPoint point);
    afx_msg void OnNcMButtonUp(UINT hitTest, CPoint point);
    afx_msg void OnNcMButtonDblClk(UINT hitTest, CPoint point);
    afx_msg void OnNcMouseHover(UINT hitTest, CPoint point);
    afx_msg void OnNcMouseLeave();
    afx_msg BOOL OnMouseWheel(UINT flags, short delta, CPoint screenPoint);
    afx_msg void OnSysColorChange();
    afx_msg void OnFontChange();
    afx_msg void OnTimeChange();
    afx_msg void OnWinIniChange(LPCTSTR section);
    afx_msg void OnSettingChange(UINT flags, LPCTSTR section);
    afx_msg void OnDevModeChange(LPTSTR device);
    afx_msg BOOL OnDeviceChange(UINT event, DWORD_PTR data);
    afx_msg void OnSpoolerStatus(UINT status, UINT jobs);
    afx_msg void OnCompacting(UINT time);
    afx_msg BOOL OnQueryNewPalette();
    afx_msg void OnPaletteIsChanging(CWnd* window);
    afx_msg void OnPaletteChanged(CWnd* window);
    afx_msg void OnInputLangChange(UINT charset, UINT layout);
    afx_msg LRESULT OnThemeChanged();
    afx_msg void OnDrawClipboard();
    afx_msg void OnDestroyClipboard();

    DECLARE_MESSAGE_MAP()

private:
    friend LRESULT AFXAPI AfxCallWndProc(CWnd* object, HWND window, UINT message, WPARAM wParam, LPARAM lParam);
};

// Window classes. AfxRegisterWndClass gives the name of a class with these properties, registering it once.
AFX_API LPCTSTR AFXAPI AfxRegisterWndClass(UINT classStyle, HCURSOR cursor = nullptr, HBRUSH background = nullptr,
                                           HICON icon = nullptr);
// TRUE also when the class exists already. The class ends with the module whose instance handle it names.
AFX_API BOOL AFXAPI AfxRegisterClass(WNDCLASS* windowClass);
AFX_API BOOL AFXAPI AfxUnregisterClass(LPCTSTR className, HINSTANCE instance);
AFX_API void AFXAPI AfxUnregisterModuleClasses(HINSTANCE instance);

// The procedure of every window of the framework, and the dispatch of one message to its object.
AFX_API LRESULT CALLBACK AfxWndProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
AFX_API WNDPROC AFXAPI AfxGetAfxWndProc();
AFX_API LRESULT AFXAPI AfxCallWndProc(CWnd* object, HWND window, UINT message, WPARAM wParam = 0, LPARAM lParam = 0);

// The next window that is created in this thread becomes the object's. AfxUnhookWindowCreate is FALSE when the window
// never came, so that the object is free.
AFX_API void AFXAPI AfxHookWindowCreate(CWnd* object);
AFX_API BOOL AFXAPI AfxUnhookWindowCreate();

// TRUE also for the window itself.
AFX_API BOOL AFXAPI AfxIsDescendant(HWND parent, HWND child);
