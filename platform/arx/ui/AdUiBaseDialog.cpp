#include "adui.h"

namespace
{

// Makes a module's resources the current ones for a while; NULL changes nothing.
class ResourceSwitch
{
public:
    explicit ResourceSwitch(HINSTANCE module) : m_former(AfxGetResourceHandle())
    {
        if (module != NULL)
            AfxSetResourceHandle(module);
    }
    ~ResourceSwitch() { AfxSetResourceHandle(m_former); }
    ResourceSwitch(const ResourceSwitch&) = delete;
    ResourceSwitch& operator=(const ResourceSwitch&) = delete;

private:
    HINSTANCE m_former;
};

} // namespace

IMPLEMENT_DYNAMIC(CAdUiBaseDialog, CDialog)

BEGIN_MESSAGE_MAP(CAdUiBaseDialog, CDialog)
END_MESSAGE_MAP()

CAdUiBaseDialog::CAdUiBaseDialog(UINT idd, CWnd* pParent, HINSTANCE hDialogResource)
    : CDialog(idd, pParent), m_hDialogResourceSaved(hDialogResource), m_multiDocumentActivation(FALSE)
{
}

CAdUiBaseDialog::~CAdUiBaseDialog() {}

BOOL CAdUiBaseDialog::Create(LPCTSTR lpszTemplateName, CWnd* pParentWnd)
{
    const ResourceSwitch resources(m_hDialogResourceSaved);
    return CDialog::Create(lpszTemplateName, pParentWnd);
}

BOOL CAdUiBaseDialog::Create(UINT nIDTemplate, CWnd* pParentWnd)
{
    return Create(MAKEINTRESOURCE(nIDTemplate), pParentWnd);
}

INT_PTR CAdUiBaseDialog::DoModal()
{
    const ResourceSwitch resources(m_hDialogResourceSaved);
    return CDialog::DoModal();
}

LPCTSTR CAdUiBaseDialog::GetAppName()
{
    return m_appName;
}

void CAdUiBaseDialog::SetAppName(LPCTSTR pAppName)
{
    m_appName = pAppName;
}

BOOL CAdUiBaseDialog::IsMultiDocumentActivationEnabled()
{
    return m_multiDocumentActivation;
}

BOOL CAdUiBaseDialog::EnableMultiDocumentActivation(BOOL bEnable)
{
    const BOOL former = m_multiDocumentActivation;
    m_multiDocumentActivation = bEnable;
    return former;
}

BOOL CAdUiBaseDialog::OnInitDialog()
{
    return CDialog::OnInitDialog();
}
