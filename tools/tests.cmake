# Runs journal-show over golden messages and damaged ones.

# The tool must end with that exit code and print the text, a regular expression.
function(add_show_test name code text)
  add_test(NAME tool_show_${name}
    COMMAND sh "${PROJECT_SOURCE_DIR}/examples/expect.sh" ${code} "${text}"
      ${CMAKE_CROSSCOMPILING_EMULATOR} $<TARGET_FILE:journal-show> ${ARGN})
endfunction()

# The same, with the tool behind a shell line, where it stands as "$@".
function(add_shell_test name code text line)
  add_show_test_in_shell(${name} ${code} "${text}" "${line}")
endfunction()
function(add_show_test_in_shell name code text line)
  add_test(NAME tool_show_${name}
    COMMAND sh "${PROJECT_SOURCE_DIR}/examples/expect.sh" ${code} "${text}" sh -c "${line}" sh
      ${CMAKE_CROSSCOMPILING_EMULATOR} $<TARGET_FILE:journal-show> ${ARGN})
endfunction()

# Writes a message and shows it.
function(add_message_test name code text message)
  set(file "${CMAKE_CURRENT_BINARY_DIR}/messages/${name}.xml")
  file(WRITE "${file}" "${message}")
  add_show_test(${name} ${code} "${text}" ${ARGN} "${file}")
endfunction()

# ---- Messages as writers write them: no remarks, whatever the kind

set(golden "${PROJECT_SOURCE_DIR}/tests/golden")
set(data "${PROJECT_SOURCE_DIR}/examples/data")
file(GLOB messages "${golden}/*.xml" "${data}/*.xml")
list(FILTER messages EXCLUDE REGEX "-(full|sparse)\\.xml$") # entry bodies, no whole messages
add_show_test(no_remarks 0 "^No remarks$" ${messages})

add_show_test(request 0 "^  entries named: 3$" "${golden}/reqDeleteMissedCallList.xml")
add_show_test(method 0 "^  Method: recognised as deleteMissedCall, code 5$"
  "${golden}/reqDeleteMissedCall.xml")
add_show_test(list 0 "^  kind: list response, missed calls$" "${data}/missed.xml")
add_show_test(list_entries 0 "^  entries: 4$" "${golden}/missed-log.xml")
add_show_test(list_handle 0 "^  handle: 7$" "${golden}/missed-log.xml")
add_show_test(notification 0 "^  removed entry: 17$"
  "${golden}/obsReqMissedCallsUpdate-removing.xml")
add_show_test(counter 0 "^  kind: counter$" "${golden}/obsReqMissedCallsCountUpdate.xml")
add_show_test(counter_not_recognised 0 "recognised as no method, code 27$"
  "${golden}/obsReqMissedGroupCallsUpdate.xml")
add_show_test(store_request 0 "^  schema: CallLogMissedCalls$" "${golden}/readMissedCallList.xml")
add_show_test(store_reason 0 "^  reason: delete_request$" "${golden}/deleteMissedCallList.xml")
add_show_test(raw_value 0 "^      DeflectName: Zentrale <1>$" "${golden}/obsReqMissedCallsUpdate.xml")
add_show_test(read_value 0 "^    surname: Müller & Söhne <\"Köln\">$" --values
  "${golden}/obsReqMissedCallsUpdate.xml")
add_show_test(entry_body 1 "no method, store request or answer is recognised"
  "${golden}/missed-full.xml")
add_test(NAME tool_show_whole_output
  COMMAND sh -c "\"$@\" | diff \"$0\" -" "${CMAKE_CURRENT_SOURCE_DIR}/expected/notification.txt"
    ${CMAKE_CROSSCOMPILING_EMULATOR} $<TARGET_FILE:journal-show> --values
    "${golden}/obsReqMissedCallsUpdate-removing.xml")

set(declaration "<?xml version=\"1.0\" encoding=\"utf-8\"?>")
set(list "<Method><getForwardedCallList></Method>")
set(call "<NumberType>MOBILE</NumberType><ConnectedNumberType>NO_ICON</ConnectedNumberType>")
set(calls "<LogList><Item>${call}</Item></LogList>")
set(handle "<Handle>1</Handle>")
add_message_test(enabled 0 "^  call log: enabled$" "<CallLogEnabled>true</CallLogEnabled>")
add_message_test(disabled 0 "^  call log: disabled$" "<CallLogEnabled>false</CallLogEnabled>")
add_message_test(success 0 "^  outcome: not failed$" "<Value>Success</Value>")
add_message_test(largest_handle 0 "^  handle: 4294967295$" "${list}<Handle>-1</Handle>")
add_message_test(last_number 0 "^  kind: answer with the last dialled number$"
  "<Method><getLastDialledNumber></Method><UniqueId>1</UniqueId><LogList></LogList>")

# ---- Damaged ones

add_message_test(entry_unclosed 1 "Entry without close tag, readers drop it"
  "${list}<Entry>${calls}${handle}")
add_message_test(entry_merged 1 "Entry without close tag, read as one with what follows"
  "${list}<Entry>${calls}<Entry>${calls}</Entry>${handle}")
add_message_test(entry_empty 1 "empty Entry, readers skip it" "${list}<Entry></Entry>${handle}")
add_message_test(item_unclosed 1 "Item without close tag"
  "${list}<Entry><LogList><Item>${call}</LogList></Entry>${handle}")
add_message_test(order 1 "EntryId stands behind Surname, writers write it in front"
  "${list}<Entry><Surname>a</Surname><EntryId>1</EntryId>${calls}</Entry>${handle}")
add_message_test(twice 1 "EntryId is there again, readers take the first"
  "${list}<Entry><EntryId>1</EntryId><EntryId>2</EntryId>${calls}</Entry>${handle}")
add_message_test(foreign 1 "Viewed does not belong in this Entry"
  "${list}<Entry><Viewed>True</Viewed>${calls}</Entry>${handle}")
add_message_test(missing 1 "offset 49: LogList is missing in this Entry"
  "${declaration}\n<Method><x></Method><Entry></Entry>")
set_tests_properties(tool_show_missing PROPERTIES DISABLED TRUE)
