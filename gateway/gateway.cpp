#include "gateway/gateway.h"

#include <algorithm>
#include <chrono>
#include <utility>

#include "basics/records.h"
#include "forms/host.h"
#include "gateway/call_log.h"
#include "gateway/check.h"
#include "gateway/stoppable_reads.h"

namespace store {

std::unique_ptr<DataSpaceObject> DataSpace;
RecordsetSlot SlotA;
RecordsetSlot SlotB;
RecordsetSlot SlotC;
std::string SqlText;
std::vector<std::string> SqlBatch;
std::string ConnectString;
std::string LastErrorText;
bool BatchInDoubt = false;

namespace {

constexpr const char* kProgId = "TWMGR.DEMON";
constexpr const char* kPassword = "qz4471";

std::shared_ptr<DataTier> ServerObject;    // the last one handed out; let go of after some calls
bool Calling = false;                      // a call is with the server
std::vector<const RecordsetSlot*> Walked;  // the slots being walked, the innermost walk last

void MayReplace(const RecordsetSlot& slot) {
  Check(std::find(Walked.begin(), Walked.end(), &slot) == Walked.end(),
        "no read into a slot, and no closing it, while its rows are being walked");
}

/// One call to the server, which tells the workstation at its end how the server stands.
class ServerCall {
 public:
  ~ServerCall() {
    Calling = false;
    if (!ServerObject->Stopped()) LogLink(ServerObject->Reached());
    Host.ShowServer(Link(), std::chrono::duration_cast<std::chrono::milliseconds>(
                                std::chrono::steady_clock::now() - start_));
  }
  ServerCall() { Check(!std::exchange(Calling, true), "no call to the server within another one"); }
  ServerCall(const ServerCall&) = delete;
  ServerCall& operator=(const ServerCall&) = delete;

 private:
  static ServerLink Link() {
    if (ServerObject->Stopped()) return ServerLink::Stopped;
    return ServerObject->Reached() ? ServerLink::Connected : ServerLink::Lost;
  }
  const std::chrono::steady_clock::time_point start_ = std::chrono::steady_clock::now();
};

void MakeServerObject() {
  LastErrorText.clear();
  if (!DataSpace) DataSpace = std::make_unique<DataSpaceObject>();
  ServerObject = DataSpace->CreateObject(kProgId, "http://" + AppOptions.BusinessServer);
  if (ServerObject) return;
  LogLink(false);
  Host.ShowServer(ServerLink::Lost, {});
}

/// A text that a value has broken is not for the server, whatever it would make of it.
bool IsWhole(const std::string& statement) {
  const std::optional<std::string_view> value = BrokenValue(statement);
  if (!value) return true;
  LastErrorText = "작은따옴표(')가 있는 값은 쓸 수 없습니다: " + std::string(*value);
  return false;
}

RecordsetSlot AskServer(const std::string& statement) {
  if (!ServerObject || !IsWhole(statement)) return nullptr;
  if (StoppableReads::Stopped()) {
    LastErrorText = kReadStopped;
    return nullptr;
  }
  const ServerCall call;
  RecordsetSlot rows = ServerObject->GETSQL(statement, LastErrorText, ConnectString);
  if (ServerObject->Stopped()) StoppableReads::NoteStopped();
  return rows;
}

RecordsetSlot Read(const std::string& statement) {
  RecordsetSlot rows = AskServer(statement);
  // What a person has stopped has not failed.
  if (!rows && !StoppableReads::Stopped()) LogFailedRead(statement, LastErrorText);
  return rows;
}

bool SendToServer(const std::vector<std::string>& statements) {
  if (!ServerObject || !std::all_of(statements.begin(), statements.end(), IsWhole)) return false;
  const ServerCall call;
  if (ServerObject->PUTSQL(statements, LastErrorText, ConnectString)) return true;
  BatchInDoubt = ServerObject->InDoubt();
  return false;
}

}  // namespace

bool AtEof(const RecordsetSlot& slot) { return !slot || slot->Eof(); }

std::string FieldText(const RecordsetSlot& slot, int field) {
  return slot ? std::string(slot->Text(field)) : std::string();
}

void ForEachRow(const RecordsetSlot& slot, const std::function<void()>& work) {
  Walked.push_back(&slot);
  for (; !AtEof(slot); slot->MoveNext()) work();
  Walked.pop_back();
}

void SetFilter(const RecordsetSlot& slot, const std::string& criteria) {
  if (slot) slot->Filter(criteria);
}

int RecordCountOf(const RecordsetSlot& slot) { return slot ? slot->RecordCount() : 0; }

void BuildConnectString(const std::string& server, const std::string& user,
                        const std::string& database) {
  ConnectString = "DRIVER={MySQL ODBC 3.51 Driver};SERVER=" + server + ";DATABASE=" + database +
                  ";UID=" + user + ";PWD=" + kPassword + ";OPTION=16386";
  Session.DatabaseName = database;
}

void OpenRecordset(RecordsetSlot& slot, const std::string& statement) {
  MayReplace(slot);
  MakeServerObject();
  if (!ServerObject) return LogFailedRead(statement, LastErrorText);
  slot = Read(statement);
  if (&slot == &SlotC) ServerObject.reset();
}

void CloseRecordset(RecordsetSlot& slot) {
  MayReplace(slot);
  slot.reset();
  ServerObject.reset();
}

RecordsetSlot FetchRecordset(const std::string& statement) {
  MakeServerObject();
  return Read(statement);
}

void QueryRows(const std::string& statement, StringTable& table, std::int32_t& rowCount,
               std::int32_t& highestColumn) {
  const Hourglass waiting;
  rowCount = 0;
  OpenRecordset(SlotA, statement);
  if (!LastErrorText.empty() || AtEof(SlotA)) return;
  rowCount = SlotA->RecordCount();
  highestColumn = SlotA->FieldCount() - 1;
  table.Redim(rowCount, highestColumn);
  SlotA->MoveFirst();
  int row = 1;
  ForEachRow(SlotA, [&] {
    for (int column = 0; column <= highestColumn; ++column) {
      table.Set(row, column, std::string(SlotA->Text(column)));
    }
    ++row;
  });
  CloseRecordset(SlotA);
}

std::string QueryText(const std::string& statement, const std::string& otherwise) {
  StringTable table;
  std::int32_t rows = 0;
  std::int32_t highestColumn = 0;
  QueryRows(statement, table, rows, highestColumn);
  return rows > 0 ? table.At(1, 0) : otherwise;
}

std::int16_t ExecuteBatch(const std::vector<std::string>& statements) {
  Check(!StoppableReads::Allowed(), "no batch where reads may be stopped");
  MakeServerObject();
  BatchInDoubt = false;
  if (SendToServer(statements)) return -1;
  LogFailedBatch(statements, LastErrorText, BatchInDoubt);
  return 0;
}

void StartBatch() { SqlBatch.assign(1, std::string()); }

void AddToBatch(const std::string& statement) { SqlBatch.push_back(statement); }

void ResetGateway() {
  DataSpace.reset();
  ServerObject.reset();
  SlotA.reset();
  SlotB.reset();
  SlotC.reset();
  SqlText.clear();
  SqlBatch.clear();
  ConnectString.clear();
  LastErrorText.clear();
  BatchInDoubt = false;
  ResetLinkLog();
}

}  // namespace store
