// Status codes of the dialog extension's operations: 0 is success, every
// failure a negative number with a fixed meaning.
#pragma once

#include <cstdint>

namespace orvan {

using Status = std::int32_t;

inline constexpr Status kNoError = 0;
inline constexpr Status kBadParameter = -50;
// A panel or shell context is missing, or memory ran out while making one.
inline constexpr Status kMissingContext = -9530;
// Sync called without a context or a print session.
inline constexpr Status kSyncMissingContext = -30879;
// An event handler did not handle the event (also after a control hit, so
// the default handling continues).
inline constexpr Status kEventNotHandled = -9874;
// A ticket has no item under the asked key.
inline constexpr Status kTicketItemNotFound = -9589;
// A ticket item is locked and cannot be replaced or removed.
inline constexpr Status kTicketItemLocked = -9590;
// A file or resource was not found (a help page, the bundle's help folder).
inline constexpr Status kFileNotFound = -43;
// The shell consumed the dialog's OK command (a notice or the fax setup ran
// instead of printing), so the dialog stays open.
inline constexpr Status kOkCommandConsumed = -12345678;
// An operation stopped at the plug-in boundary by a C++ exception that its
// code did not handle; the host keeps running and sees this status.
inline constexpr Status kUnexpectedFailure = -9536;
// The address book could not be written (its folder or a contact file).
inline constexpr Status kAddressBookWriteFailed = -36;
// Query-interface for an interface the object does not offer.
inline constexpr Status kNoSuchInterface = static_cast<Status>(0x80000004u);

} // namespace orvan
