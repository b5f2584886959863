// What can go wrong, in which calls, and what they return then.

#include <algorithm>
#include <cerrno>

#include "tests/faults/file_faults.h"

namespace velnor {
namespace {

using enum FileCall;
using enum Fault;

struct FaultRow {
  Fault fault;
  const char* name;
  int error;  // 0: the process ends
};

constexpr FaultRow kFaults[] = {
    {kNoSpace, "no space", ENOSPC},
    {kInputOutput, "an input or output error", EIO},
    {kNoAccess, "no access", EACCES},
    {kHalf, "no space or a bad sector after half of the bytes", EIO},
    {kFullFromHere, "a full disk from here on", ENOSPC},
    {kGoneFromHere, "a lost disk from here on", EIO},
    {kCrashBefore, "a crash before the call", 0},
    {kCrashHalf, "a crash after half of the bytes", 0},
    {kCrashAfter, "a crash after the call", 0},
    {kPowerCut, "a power cut after the call", 0},
};

struct CallRow {
  FileCall call;
  const char* name;
  bool needs_space;
  std::vector<Fault> faults;
};

const CallRow& RowOf(FileCall call) {
  static const CallRow kRows[] = {
      {kOpenToRead, "open to read", false, {kInputOutput, kNoAccess, kGoneFromHere, kCrashBefore}},
      {kRead, "read", false, {kInputOutput, kHalf, kGoneFromHere, kCrashBefore}},
      {kCloseRead, "close what was read", false, {kInputOutput, kGoneFromHere, kCrashBefore}},
      {kOpenToWrite,
       "open to write",
       true,
       {kNoSpace, kInputOutput, kNoAccess, kFullFromHere, kGoneFromHere, kCrashBefore, kCrashAfter,
        kPowerCut}},
      {kWrite,
       "write",
       true,
       {kNoSpace, kInputOutput, kHalf, kFullFromHere, kGoneFromHere, kCrashBefore, kCrashHalf,
        kCrashAfter, kPowerCut}},
      {kFlush,
       "flush",
       true,
       {kNoSpace, kInputOutput, kFullFromHere, kGoneFromHere, kCrashBefore, kCrashAfter,
        kPowerCut}},
      {kSync,
       "sync",
       true,
       {kNoSpace, kInputOutput, kFullFromHere, kGoneFromHere, kCrashBefore, kCrashAfter,
        kPowerCut}},
      {kCloseWritten,
       "close what was written",
       true,
       {kNoSpace, kInputOutput, kFullFromHere, kGoneFromHere, kCrashBefore, kCrashAfter,
        kPowerCut}},
      {kReplace,
       "rename",
       true,
       {kNoSpace, kInputOutput, kNoAccess, kFullFromHere, kGoneFromHere, kCrashBefore, kCrashAfter,
        kPowerCut}},
      {kRemove,
       "remove",
       false,
       {kInputOutput, kNoAccess, kGoneFromHere, kCrashBefore, kCrashAfter, kPowerCut}},
      {kMakeFolder,
       "make a folder",
       true,
       {kNoSpace, kInputOutput, kNoAccess, kFullFromHere, kGoneFromHere, kCrashBefore, kCrashAfter,
        kPowerCut}},
      {kRemoveFolder,
       "remove a folder",
       false,
       {kInputOutput, kNoAccess, kGoneFromHere, kCrashBefore, kCrashAfter, kPowerCut}},
      {kListFolder, "list a folder", false, {kInputOutput, kNoAccess, kGoneFromHere, kCrashBefore}},
      {kSeek, "seek", false, {kInputOutput, kGoneFromHere, kCrashBefore}},
      {kOpenToLock, "open to lock", false, {kInputOutput, kNoAccess, kGoneFromHere, kCrashBefore}},
      {kLock, "lock", false, {kInputOutput, kGoneFromHere, kCrashBefore}},
      {kUnlock, "unlock", false, {kInputOutput, kGoneFromHere, kCrashBefore}},
      {kLookAt, "look at", false, {kInputOutput, kNoAccess, kGoneFromHere, kCrashBefore}},
      {kCut, "cut", false, {kInputOutput, kGoneFromHere, kCrashBefore, kCrashAfter, kPowerCut}},
  };
  return *std::ranges::find(kRows, call, &CallRow::call);
}

const FaultRow& RowOf(Fault fault) { return *std::ranges::find(kFaults, fault, &FaultRow::fault); }

}  // namespace

const char* NameOf(FileCall call) { return RowOf(call).name; }

const char* NameOf(Fault fault) { return RowOf(fault).name; }

bool IsCrash(Fault fault) { return RowOf(fault).error == 0; }

bool Lasts(Fault fault) { return fault == kFullFromHere || fault == kGoneFromHere; }

std::vector<Fault> FaultsOf(FileCall call) { return RowOf(call).faults; }

int ErrorOf(Fault fault) { return RowOf(fault).error; }

bool NeedsSpace(FileCall call) { return RowOf(call).needs_space; }

}  // namespace velnor
