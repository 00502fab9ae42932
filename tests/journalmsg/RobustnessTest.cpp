// What the program does when its input or output fails, with hostile bytes, and with any size.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "Program.h"

namespace {

TEST(Robustness, ClosedPipesEndQuietly) {
  auto const result = run("for n in {1..100}; do cat $samples/missed.xml; done | journalmsg decode "
                          "--format jsonl 2>errors | head -c 10 >/dev/null; cat errors");
  EXPECT_EQ(result.out, "");
}

TEST(Robustness, AFullDiskIsAnError) {
  auto const result = run("journalmsg decode --format jsonl $samples/missed.xml >/dev/full");
  EXPECT_EQ(result.err, "journalmsg: cannot write the output: No space left on device\n");
  EXPECT_EQ(result.code, 3);
}

TEST(Robustness, FilesThatCannotBeReadAreErrorsAndTheOthersAreRead) {
  auto const result = run("journalmsg make success >good; journalmsg identify none good | wc -l;"
                          "journalmsg identify none good >/dev/null");
  EXPECT_EQ(result.out, "1\n");
  EXPECT_EQ(result.err, "journalmsg: cannot read none: No such file or directory\n"
                        "journalmsg: cannot read none: No such file or directory\n");
  EXPECT_EQ(result.code, 3);
}

TEST(Robustness, FoldersAreRead) {
  auto const result = run("mkdir -p a/b; journalmsg make success >a/2; journalmsg make failure "
                          ">a/b/1; journalmsg identify a | sed 's/.* //'");
  EXPECT_EQ(result.out, "a/2:1\na/b/1:1\n");
}

TEST(Robustness, BinaryGarbageIsNotRecognised) {
  auto const result = run("head -c 100000 /bin/bash | journalmsg identify | wc -l; head -c 100000 "
                          "/dev/urandom | journalmsg check");
  EXPECT_EQ(result.out, "0\n");
  EXPECT_EQ(result.code, 4);
}

TEST(Robustness, GzipIsUnpacked) {
  EXPECT_EQ(run("journalmsg make success | gzip | journalmsg decode").out, "outcome  success\n");
  auto const twice = run("(journalmsg make success | gzip; journalmsg make failure | gzip) >two.gz;"
                         "journalmsg decode two.gz");
  EXPECT_EQ(twice.code, 0) << twice.err;
  auto const cut = run("gzip <$samples/missed.xml | head -c 500 | journalmsg identify");
  EXPECT_EQ(cut.err, "journalmsg: cannot read standard input: is gzip that ends too early\n");
  EXPECT_EQ(cut.code, 3);
}

TEST(Robustness, GzipMayEndWithTheBuffer) {
  auto const result = run("journalmsg make success >m; truncate -s 262144 m; gzip -c m >m.gz;"
                          "journalmsg identify m.gz | wc -l");
  EXPECT_EQ(result.out, "1\n");
  EXPECT_EQ(result.err, "");
}

TEST(Robustness, GzipIsRecognisedInPiecesAndMayBePadded) {
  auto const result =
      run("gzip -c $samples/missed.xml >log.gz; truncate -s +1000 log.gz;"
          "(head -c 1 log.gz; sleep 0.1; tail -c +2 log.gz) | journalmsg identify --format jsonl");
  EXPECT_NE(result.out.find("\"listResponse\""), std::string::npos) << result.out;
  EXPECT_EQ(result.err, "");
  EXPECT_EQ(result.code, 0);
  EXPECT_EQ(run("printf '\\x1f' | journalmsg identify").code, 4);
}

TEST(Robustness, Base64NeedsNoPadding) {
  EXPECT_EQ(run("printf '<Value>Success</Value>' | base64 -w0 | tr -d = | journalmsg decode").out,
            "outcome  success\n");
}

TEST(Robustness, LongMessagesAreMatched) {
  auto const result =
      run("journalmsg make obsReqMissedCallsUpdate '{\"surname\":\"'$(head -c 100000 "
          "/dev/zero | tr '\\0' a)'\"}' 0 7 | journalmsg watch --match "
          "'Method.*Handle' | wc -l");
  EXPECT_EQ(result.out, "1\n") << result.err;
}

TEST(Robustness, RedactionMasksWhatDamageMovesIntoOtherElements) {
  auto const result =
      run("printf '<Method><getMissedCallList></Method><Entry><UniqueId>1<Surnme>Berg 5550123"
          "</Surnme></Entry><Handle>7 Berg 5550123' | journalmsg explain --redact");
  EXPECT_EQ(result.out.find("Berg"), std::string::npos) << result.out;
  EXPECT_EQ(result.out.find("5550123"), std::string::npos) << result.out;
}

TEST(Robustness, AnAppendedOutcomeIsADifference) {
  auto const result = run("(cat $golden/missed-log.xml; printf '<Value>Failure</Value>') >failed;"
                          "journalmsg diff $golden/missed-log.xml failed");
  EXPECT_EQ(result.code, 1);
  EXPECT_NE(result.out.find("Failure"), std::string::npos) << result.out;
}

TEST(Robustness, AStrayListInACallIsNoReasonToSkipTheNextCall) {
  auto const result = run(
      "printf '<Method><getMissedCallList></Method><Entry><UniqueId>1</UniqueId><LogList><Item>"
      "<Number>5</Number><LogList><NumberType>MOBILE</NumberType></Item><Item><Number>6</Number>"
      "</Item></LogList></Entry><Handle>7</Handle>' | journalmsg explain | grep '\"6\"'");
  EXPECT_NE(result.out.find("\"6\"       \"6\""), std::string::npos) << result.out;
}

TEST(Robustness, DumpsAreUnpacked) {
  auto const command = [](std::string const& pack) {
    return run(pack + " $golden/missed-log.xml | journalmsg decode --format jsonl").out;
  };
  auto const plain = command("cat");
  EXPECT_FALSE(plain.empty());
  EXPECT_EQ(command("base64"), plain);
  EXPECT_EQ(command("od -An -v -tx1 <"), plain);
}

TEST(Robustness, LargeMessagesAreRefusedAboveTheLimit) {
  auto const result = run("journalmsg identify --limit 1K $samples/missed.xml");
  EXPECT_EQ(result.err, "journalmsg: cannot read " JOURNAL_SAMPLES_DIR
                        "/missed.xml: a message is larger than 1024 bytes (see --limit)\n");
  EXPECT_EQ(result.code, 3);
}

TEST(Robustness, OrderIsKeptByAnyNumberOfThreads) {
  auto const result = run("for n in {1..200}; do cat $samples/*.xml; echo; done >many;"
                          "journalmsg decode --format jsonl many | md5sum; "
                          "journalmsg decode -j 3 --format jsonl many | md5sum");
  auto const line = result.out.find('\n');
  ASSERT_NE(line, std::string::npos);
  EXPECT_EQ(result.out.substr(0, line), result.out.substr(line + 1, line)) << result.out;
  EXPECT_EQ(result.err, "");
}

// An address sanitizer reserves more than any limit.
#ifndef JOURNAL_SANITIZED
TEST(Robustness, MemoryIsBoundedWhateverTheSize) {
  auto const result = run("(cat $samples/*.xml; echo) >many; for n in {1..11}; do cat many many "
                          ">more; mv more many; done;"
                          "[ $(stat -c %s many) -gt 100000000 ] || exit 9;"
                          "ulimit -v 120000; journalmsg decode --format jsonl many | wc -l");
  EXPECT_EQ(result.out, "8192\n") << result.err;
}
#endif

/// Explains, checks, decodes and identifies a message that holds an escape sequence.
/// @param each how each command is run
std::string shownWithEscapes(std::string const& each) {
  return run("printf '<Value>\\033[31m</Value>' >m; for c in explain check decode identify; do " +
                 each + "; done",
             "")
      .out;
}

TEST(Robustness, ControlCharactersNeverReachPeople) {
  auto const shown = shownWithEscapes("journalmsg $c --color never m");
  EXPECT_EQ(shown.find('\x1b'), std::string::npos) << shown;
  EXPECT_NE(shown.find("\\x1b[31m"), std::string::npos) << shown;
}

// A bare root has no pseudo-terminals; there, the test above is all.
TEST(Robustness, ControlCharactersNeverReachATerminal) {
  if (run("script -qec true /dev/null").code != 0)
    GTEST_SKIP() << "no pseudo-terminals here";
  auto const shown = shownWithEscapes(
      "script -qec \"$(declare -f journalmsg); journalmsg $c --color never m\" /dev/null");
  EXPECT_EQ(shown.find('\x1b'), std::string::npos) << shown;
  EXPECT_NE(shown.find("\\x1b[31m"), std::string::npos) << shown;
}

// The first piece comes at once, the second one after the bar may be drawn. A bare root has no
// pseudo-terminals; there, only that no bar is drawn elsewhere is tested.
TEST(Robustness, ABarIsDrawnOnATerminalAfterTwoSeconds) {
  std::string const slowly = "(cat $samples/missed.xml; sleep 2.2; cat $samples/missed.xml) |"
                             "journalmsg identify >/dev/null";
  EXPECT_EQ(run(slowly).err, "");
  if (run("script -qec true /dev/null").code != 0)
    GTEST_SKIP() << "no pseudo-terminals here";
  auto const shown = run("export samples journalmsg=\"$(declare -f journalmsg)\";"
                         "script -qec 'eval \"$journalmsg\"; " +
                         slowly + "' /dev/null")
                         .out;
  EXPECT_NE(shown.find("[....................] 0 MB"), std::string::npos) << shown;
  EXPECT_EQ(shown.substr(shown.size() - 4), "\r\x1b[K") << "the bar is removed";
}

TEST(Robustness, ColoursAreAskedFor) {
  EXPECT_EQ(run("journalmsg decode", "<Value>Success</Value>").out.find('\x1b'), std::string::npos);
  EXPECT_NE(run("journalmsg decode --color always", "<Value>Success</Value>").out.find('\x1b'),
            std::string::npos);
}

/// Each piece is mapped by itself, as an engine that streams lines through programs does it.
TEST(Robustness, PiecesOfAFileGiveTheSameAsTheWhole) {
  auto const result = run("for n in {1..50}; do cat $samples/*.xml | tr -d '\\n' | sed "
                          "'s/<Method>/\\n&/g'; done | sed 1d >many; split -n l/4 many part.;"
                          "for part in part.*; do journalmsg decode --format jsonl $part; done |"
                          "sort | md5sum; journalmsg decode --format jsonl many | sort | md5sum");
  auto const line = result.out.find('\n');
  ASSERT_NE(line, std::string::npos);
  EXPECT_EQ(result.out.substr(0, line), result.out.substr(line + 1, line)) << result.out;
}

} // namespace
