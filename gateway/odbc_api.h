#pragma once

#include <sql.h>
#include <sqlext.h>

namespace store {

/// The routines of the driver manager that the data tier calls, so that a test can let one of them
/// fail where the real one hardly ever does.
struct OdbcApi {
  decltype(&SQLAllocHandle) AllocHandle = SQLAllocHandle;
  decltype(&SQLBindCol) BindCol = SQLBindCol;
  decltype(&SQLColAttribute) ColAttribute = SQLColAttribute;
  decltype(&SQLDescribeCol) DescribeCol = SQLDescribeCol;
  decltype(&SQLDisconnect) Disconnect = SQLDisconnect;
  decltype(&SQLDriverConnect) DriverConnect = SQLDriverConnect;
  decltype(&SQLEndTran) EndTran = SQLEndTran;
  decltype(&SQLExecDirect) ExecDirect = SQLExecDirect;
  decltype(&SQLFetch) Fetch = SQLFetch;
  decltype(&SQLFreeHandle) FreeHandle = SQLFreeHandle;
  decltype(&SQLGetConnectAttr) GetConnectAttr = SQLGetConnectAttr;
  decltype(&SQLGetData) GetData = SQLGetData;
  decltype(&SQLGetDiagRec) GetDiagRec = SQLGetDiagRec;
  decltype(&SQLGetInfo) GetInfo = SQLGetInfo;
  decltype(&SQLNumResultCols) NumResultCols = SQLNumResultCols;
  decltype(&SQLRowCount) RowCount = SQLRowCount;
  decltype(&SQLSetConnectAttr) SetConnectAttr = SQLSetConnectAttr;
  decltype(&SQLSetEnvAttr) SetEnvAttr = SQLSetEnvAttr;
  decltype(&SQLSetStmtAttr) SetStmtAttr = SQLSetStmtAttr;
};

inline OdbcApi Odbc;

}  // namespace store
