// Dialog data exchange and validation: one function for each type of value. Called in
// DoDataExchange, in the order of the controls. A DDV_ call follows the DDX_ call of its control
// directly, because a failure sets the focus to the control exchanged last. Included by afxwin.h.
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
// nIDC: first button of the group; value -1: none checked.
void DDX_Radio(CDataExchange* pDX, int nIDC, int& value);
void DDX_CBIndex(CDataExchange* pDX, int nIDC, int& index);
void DDX_CBString(CDataExchange* pDX, int nIDC, CString& value);
void DDX_LBIndex(CDataExchange* pDX, int nIDC, int& index);
void DDX_LBString(CDataExchange* pDX, int nIDC, CString& value);

// A value out of range is an error only while saving, not while showing.
void DDV_MinMaxInt(CDataExchange* pDX, int value, int minVal, int maxVal);
void DDV_MinMaxUInt(CDataExchange* pDX, UINT value, UINT minVal, UINT maxVal);
void DDV_MinMaxDouble(CDataExchange* pDX, double const& value, double minVal, double maxVal);
// Also limits the length of text in the edit control.
void DDV_MaxChars(CDataExchange* pDX, CString const& value, int nChars);
