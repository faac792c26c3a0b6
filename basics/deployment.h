#pragma once

#include <chrono>
#include <string>

namespace store {

/// What a deployment decides for all its workstations: a default of the build, which an environment
/// variable of the same meaning overrides unless it is empty.

/// Host of the directory database, as the SERVER of a connection string ("host" or
/// "host;PORT=number"). Variable STORE_DIRECTORY_SERVER.
std::string DirectoryServer();

/// Where the product's web pages stand, with the slash at the end. Variable STORE_WEB_HOST.
std::string WebHost();

/// The program that sends the master file to the terminal's cradle; empty for the one under the
/// program's folder. Variable STORE_TRANSFER_TOOL.
std::string TransferToolPath();
/// The device behind "Com1" to "Com4": "COM1" and so on under Windows, elsewhere "/dev/ttyS0" and
/// so on. Variables STORE_COM1 to STORE_COM4. Empty for any other number.
std::string SerialDevice(int port);

/// The folder for what the program keeps for its user beyond the options, without a slash at the
/// end: "store-client" under the user's data folder ($XDG_DATA_HOME, else ~/.local/share). Empty
/// where there is no such folder. Variable STORE_DATA_FOLDER.
std::string DataFolder();

/// How long the data tier waits; each variable is a number of seconds. A batch is sent four times
/// at most when others stand against it, so four lock waits have to fit into its limit.
std::chrono::seconds ConnectTimeout();  ///< For a server that does not answer a login: 5 seconds.
                                        ///< Variable STORE_CONNECT_TIMEOUT.
std::chrono::seconds LockWait();        ///< For rows that another client holds: 4 seconds.
                                        ///< Variable STORE_LOCK_WAIT.
std::chrono::seconds ReadLimit();       ///< For a read to be done: 20 seconds. Variable
                                        ///< STORE_READ_LIMIT.
std::chrono::seconds BatchLimit();      ///< For a batch to be done: 20 seconds. Variable
                                        ///< STORE_BATCH_LIMIT.

}  // namespace store
