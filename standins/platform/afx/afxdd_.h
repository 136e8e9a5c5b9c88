// Dialog data exchange and validation: one function a kind of value. To be called in
// DoDataExchange, in the order of the controls; a DDV_ stands right behind the DDX_ of its control,
// because a failure sends the user to the control exchanged last. Included by afxwin.h.
#pragma once

void DDX_Control(CDataExchange* pDX, int nIDC, CWnd& rControl);  // subclasses it, once

void DDX_Text(CDataExchange* pDX, int nIDC, BYTE& value);
void DDX_Text(CDataExchange* pDX, int nIDC, short& value);
void DDX_Text(CDataExchange* pDX, int nIDC, int& value);
void DDX_Text(CDataExchange* pDX, int nIDC, UINT& value);
void DDX_Text(CDataExchange* pDX, int nIDC, long& value);
void DDX_Text(CDataExchange* pDX, int nIDC, DWORD& value);
void DDX_Text(CDataExchange* pDX, int nIDC, CString& value);
void DDX_Text(CDataExchange* pDX, int nIDC, float& value);   // 6 digits
void DDX_Text(CDataExchange* pDX, int nIDC, double& value);  // 15 digits

void DDX_Check(CDataExchange* pDX, int nIDC, int& value);  // 0, 1; 2 undetermined
void DDX_Radio(CDataExchange* pDX, int nIDC, int& value);  // nIDC starts the group; -1 none chosen
void DDX_CBIndex(CDataExchange* pDX, int nIDC, int& index);
void DDX_CBString(CDataExchange* pDX, int nIDC, CString& value);
void DDX_LBIndex(CDataExchange* pDX, int nIDC, int& index);
void DDX_LBString(CDataExchange* pDX, int nIDC, CString& value);

// While showing, a value out of range is let through; only what the user typed is refused.
void DDV_MinMaxInt(CDataExchange* pDX, int value, int minVal, int maxVal);
void DDV_MinMaxUInt(CDataExchange* pDX, UINT value, UINT minVal, UINT maxVal);
void DDV_MinMaxDouble(CDataExchange* pDX, double const& value, double minVal, double maxVal);
// Also tells the edit control to take no more characters.
void DDV_MaxChars(CDataExchange* pDX, CString const& value, int nChars);
