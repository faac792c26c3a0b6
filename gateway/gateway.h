#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "gateway/data_space.h"
#include "gateway/recordset.h"
#include "gateway/splice.h"
#include "gateway/string_table.h"

namespace store {

/// The one road to the database. Nothing here raises an error or shows a message: a failed read
/// looks like an empty one, and only `ExecuteBatch` says that something went wrong.

/// Holds what a read brought, or nothing. Whoever still has to look at rows after the slot may have
/// been read anew keeps a copy of it.
using RecordsetSlot = std::shared_ptr<Recordset>;

extern std::unique_ptr<DataSpaceObject> DataSpace;  ///< Made on first use.
extern RecordsetSlot SlotA;                ///< The common read; every `QueryRows` lands here.
extern RecordsetSlot SlotB;                ///< For order forms, while `SlotA` is being walked.
extern RecordsetSlot SlotC;                ///< The item list, searched by filters.
extern std::string SqlText;                ///< Scratch text for a statement.
extern std::vector<std::string> SqlBatch;  ///< Element 0 stays empty; statements from 1 on.
extern std::string ConnectString;
extern std::string LastErrorText;  ///< The server's words about the last call; empty if it ran.
extern bool BatchInDoubt;  ///< Whether nobody can say if the last batch was stored: it may have
                           ///< been, and it may still be running at the server.

/// The failure model in one place: a test on a slot that holds nothing counts as passed, so the
/// caller takes the road of found-nothing.
bool AtEof(const RecordsetSlot& slot);

/// The current row's field of a slot as text; empty when the slot holds nothing or is at its end.
std::string FieldText(const RecordsetSlot& slot, int field);

/// Does `work` for each row of the slot, from the current one to the end; a slot that holds nothing
/// has no row. Until that is done the slot is being walked: a read into it, or closing it, would
/// take the rows away under the walk and is a broken rule (gateway/check.h). Such a read belongs
/// into another slot or into `FetchRecordset`.
void ForEachRow(const RecordsetSlot& slot, const std::function<void()>& work);

/// Sets a filter on what the slot holds. With nothing in it, or a criteria text that does not
/// parse, everything stays as it was.
void SetFilter(const RecordsetSlot& slot, const std::string& criteria);

/// Rows that pass in what the slot holds; 0 when it holds nothing.
int RecordCountOf(const RecordsetSlot& slot);

/// Sets `ConnectString`, naming user and data source as the data tier expects them, and copies the
/// database name into `Session`.
void BuildConnectString(const std::string& server, const std::string& user,
                        const std::string& database);

/// Runs a SELECT into `slot`, which nobody may be walking. If the data tier cannot be reached the
/// slot keeps what it held; if the statement fails it holds nothing afterwards and `LastErrorText`
/// says why.
void OpenRecordset(RecordsetSlot& slot, const std::string& statement);

/// Empties the slot, which nobody may be walking, and lets go of the server object.
void CloseRecordset(RecordsetSlot& slot);

/// As `OpenRecordset`, but the caller owns what comes back and no slot is touched. May be nothing.
RecordsetSlot FetchRecordset(const std::string& statement);

/// Reads through `SlotA` into `table`: rows from 1, columns from 0, NULL as the empty text. With no
/// row, or on a failure, `rowCount` is 0 and `table` and `highestColumn` are left as they were.
void QueryRows(const std::string& statement, StringTable& table, std::int32_t& rowCount,
               std::int32_t& highestColumn);

/// The text in row 1, column 0 of a read, or `otherwise` when it gives no row.
std::string QueryText(const std::string& statement, const std::string& otherwise);

/// Sends the list in one transaction; a SELECT in it is a guard (gateway/guard.h). -1 when all
/// statements ran, 0 otherwise: then none of them took effect, unless `BatchInDoubt` says so.
std::int16_t ExecuteBatch(const std::vector<std::string>& statements);

/// Empties `SqlBatch` to its element 0.
void StartBatch();
/// Adds a statement behind the others.
void AddToBatch(const std::string& statement);

/// All of the gateway's state as at the start of a run, the kept connection included.
void ResetGateway();

}  // namespace store
