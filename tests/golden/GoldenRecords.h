// The records that the golden messages of this folder stand for, told by hand.
//
// What an encoder is given and what a decoder gives back are not the same: the holder's infoKey
// never travels, texts that are copied raw come back unescaped, and some kinds lose a field. The
// decoded... functions say exactly what is lost.
#ifndef GOLDENRECORDS_H
#define GOLDENRECORDS_H

#include <deque>
#include <string>

#include "CallLogItems.h"

namespace golden {

/// The bytes of tests/golden/<name>.xml. Throws std::runtime_error when there is no such file.
std::string message(std::string const& name);

// <kind>-full: every text set, markup and non-ASCII characters in names, two calls.
MissedCallItem fullMissedItem();
DialledCallItem fullDialledItem();
ReceivedCallItem fullReceivedItem();
ForwardedCallItem fullForwardedItem();

MissedCallItem decodedFullMissedItem();
DialledCallItem decodedFullDialledItem();
ReceivedCallItem decodedFullReceivedItem();
ForwardedCallItem decodedFullForwardedItem();

// <kind>-sparse: one text of the entry set and one call in which nothing is; comes back unchanged.
MissedCallItem sparseMissedItem();
DialledCallItem sparseDialledItem();
ReceivedCallItem sparseReceivedItem();
ForwardedCallItem sparseForwardedItem();

// <kind>-log: the entries of a list response.
std::deque<MissedCallItem> missedLog();
std::deque<DialledCallItem> dialledLog();
std::deque<ReceivedCallItem> receivedLog();
std::deque<ForwardedCallItem> forwardedLog();

std::deque<MissedCallItem> decodedMissedLog();
std::deque<DialledCallItem> decodedDialledLog();
std::deque<ReceivedCallItem> decodedReceivedLog();
std::deque<ForwardedCallItem> decodedForwardedLog();

// The handle in <kind>-log.
constexpr unsigned int MISSED_HANDLE = 7;
constexpr unsigned int DIALLED_HANDLE = 0;
constexpr unsigned int RECEIVED_HANDLE = 2147483647;
constexpr unsigned int FORWARDED_HANDLE = 4294967295; // written "-1"

} // namespace golden

#endif
