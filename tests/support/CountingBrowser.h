// Puts a counting shell around the system's browser control for this process while it lives: everything works as with
// the bare control, but connections to its events are counted, may be told to fail, and events can be fired.
#pragma once

#include <windows.h>

#include <exdisp.h>
#include <ole2.h>

class CountingBrowser : public IClassFactory
{
public:
    // What the controls that are created refuse.
    enum Refusal
    {
        Nothing,
        Container,  // to have any connection points
        Point,      // to have the one of the browser's events
        Connection, // to be advised
        Activation  // to show themselves
    };

    explicit CountingBrowser(Refusal refusal = Nothing);
    ~CountingBrowser();
    CountingBrowser(const CountingBrowser&) = delete;
    CountingBrowser& operator=(const CountingBrowser&) = delete;

    int Advised() const { return m_advised; }     // successful calls of Advise
    int Unadvised() const { return m_unadvised; } // calls of Unadvise with the cookie of one of them
    int Alive() const { return m_alive; }         // controls that somebody still holds

    // Sends an event without arguments to whoever is connected. False: nobody is.
    bool Fire(DISPID event);

    STDMETHODIMP QueryInterface(REFIID id, void** object) override;
    STDMETHODIMP_(ULONG) AddRef() override { return 2; }
    STDMETHODIMP_(ULONG) Release() override { return 1; }
    STDMETHODIMP CreateInstance(IUnknown*, REFIID id, void** object) override;
    STDMETHODIMP LockServer(BOOL) override { return S_OK; }

private:
    class Shell;
    class ConnectionPoint;

    Refusal m_refusal;
    IClassFactory* m_real = nullptr; // of the bare control
    DWORD m_cookie = 0;
    IDispatch* m_receiver = nullptr; // of the events; held while it is connected
    DWORD m_receiverCookie = 0;
    int m_advised = 0;
    int m_unadvised = 0;
    int m_alive = 0;
};
