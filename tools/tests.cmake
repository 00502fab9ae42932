# Runs journal-show over golden messages and damaged ones.

# The tool must end with that exit code and print the text, a regular expression.
function(add_show_test name code text)
  add_test(NAME tool_show_${name}
    COMMAND sh "${PROJECT_SOURCE_DIR}/examples/expect.sh" ${code} "${text}"
      ${CMAKE_CROSSCOMPILING_EMULATOR} $<TARGET_FILE:journal_show> ${ARGN})
endfunction()

# The same, with the tool in a shell command, as "$@".
function(add_shell_test name code text line)
  add_test(NAME tool_show_${name}
    COMMAND sh "${PROJECT_SOURCE_DIR}/examples/expect.sh" ${code} "${text}" sh -c "${line}" sh
      ${CMAKE_CROSSCOMPILING_EMULATOR} $<TARGET_FILE:journal_show> ${ARGN})
endfunction()

# Writes a message and shows it.
function(add_message_test name code text message)
  set(file "${CMAKE_CURRENT_BINARY_DIR}/messages/${name}.xml")
  file(WRITE "${file}" "${message}")
  add_show_test(${name} ${code} "${text}" ${ARGN} "${file}")
endfunction()

# ---- Messages as writers write them: no remarks, whatever the kind

set(golden "${PROJECT_SOURCE_DIR}/tests/golden")
file(GLOB messages "${golden}/*.xml")
add_show_test(no_remarks 0 "^No remarks$" ${messages})

set(data "${PROJECT_SOURCE_DIR}/examples/data")
add_show_test(request 0 "^  entries named: 3$" "${golden}/reqDeleteMissedCallList.xml")
add_show_test(method 0 "^  Method: recognised as deleteMissedCall, code 5$"
  "${golden}/reqDeleteMissedCall.xml")
add_show_test(list 0 "^  kind: list response, forwarded calls$" "${data}/forwarded.xml")
add_show_test(list_entries 0 "^  entries: 20$" "${data}/forwarded.xml")
add_show_test(counter 0 "^  kind: counter$" "${golden}/obsReqMissedCallsCountUpdate.xml")
add_show_test(counter_not_recognised 0 "recognised as no method, code 27$"
  "${golden}/obsReqMissedGroupCallsUpdate.xml")
add_show_test(store_request 0 "^  schema: CallLogMissedCalls$" "${golden}/readMissedCallList.xml")
add_show_test(store_reason 0 "^  reason: delete_request$" "${golden}/deleteMissedCallList.xml")

set(declaration "<?xml version=\"1.0\" encoding=\"utf-8\"?>")
set(list "<Method><getForwardedCallList></Method>")
set(call "<NumberType>MOBILE</NumberType><ConnectedNumberType>NO_ICON</ConnectedNumberType>")
set(calls "<LogList><Item>${call}</Item></LogList>")
set(handle "<Handle>1</Handle>")
add_message_test(list_handle 0 "^  handle: 1$" "${list}<Entry>${calls}</Entry>${handle}")
add_message_test(entry_body 1 "no method, store request or answer is recognised"
  "<UniqueId>1</UniqueId>${calls}")

set(notification "${declaration}<Method><forwardedCallsUpdate></Method><UniqueId>F-1</UniqueId>\
<Surname>Müller &amp; Söhne</Surname><LogList><Item><Number>110</Number>${call}\
<TimeDate>a <1></TimeDate></Item><Item>${call}</Item></LogList>\
<UniqueIdToDelete>17</UniqueIdToDelete><ActionType>0</ActionType>${handle}")
add_message_test(notification 0 "^  removed entry: 17$" "${notification}")
add_message_test(raw_value 0 "^      TimeDate: a <1>$" "${notification}")
add_message_test(read_value 0 "^    surname: Müller & Söhne$" "${notification}" --values)
add_test(NAME tool_show_whole_output
  COMMAND sh -c "\"$@\" | diff \"$0\" -" "${CMAKE_CURRENT_SOURCE_DIR}/expected/notification.txt"
    ${CMAKE_CROSSCOMPILING_EMULATOR} $<TARGET_FILE:journal_show> --values
    "${CMAKE_CURRENT_BINARY_DIR}/messages/notification.xml")
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
add_message_test(item_unclosed 1 "Item without close tag, readers drop it"
  "${list}<Entry><LogList><Item>${call}</LogList></Entry><Entry>${calls}</Entry>${handle}")
add_message_test(item_merged 1 "Item without close tag, read as one with what follows"
  "${list}<Entry><LogList><Item>${call}<Item>${call}</Item></LogList></Entry>${handle}")
add_message_test(calls_unclosed 1 "LogList without close tag, readers drop it"
  "${list}<Entry><LogList><Item>${call}</Item></Entry>${handle}")
add_message_test(order 1 "EntryId is behind Surname, writers write it in front"
  "${list}<Entry><Surname>a</Surname><EntryId>1</EntryId>${calls}</Entry>${handle}")
add_message_test(twice 1 "EntryId is there again, readers take the first"
  "${list}<Entry><EntryId>1</EntryId><EntryId>2</EntryId>${calls}</Entry>${handle}")
add_message_test(foreign 1 "Viewed does not belong in this Entry"
  "${list}<Entry><Viewed>True</Viewed>${calls}</Entry>${handle}")
add_message_test(missing 1 "offset 39: LogList is missing in this Entry"
  "${list}<Entry><EntryId>1</EntryId></Entry>${handle}")
add_message_test(handle_missing 1 "Handle is missing in the message" "${list}")
add_message_test(element_unclosed 1 "<Surname> without close tag, readers do not find it"
  "${list}<Entry><Surname>a${calls}</Entry>${handle}")
add_message_test(stray_close 1 "</Surname> closes nothing" "${list}</Surname>${handle}")
add_message_test(markup 1 "Picture holds a tag of the format"
  "${list}<Entry><Picture><UniqueId>7</UniqueId></Picture>${calls}</Entry>${handle}")
add_message_test(member 1 "NumberType \"Mobile\" is no member, read as NO_ICON"
  "${list}<Entry><LogList><Item><NumberType>Mobile</NumberType></Item></LogList></Entry>${handle}")
add_message_test(target 1 "TargetLog \"IN_BUSY \" is no member, read as OUT_BUSY"
  "<Item><TargetLog>IN_BUSY </TargetLog></Item>")
add_message_test(format 1 "TimeFormat \"FORM_12\" is no member, read as FORM_24"
  "<Item><TimeFormat>FORM_12</TimeFormat></Item>")
add_message_test(presentation 1 "NamePresentation \"\" is no member, read as NOT_AVAILABLE"
  "<Item><NamePresentation></NamePresentation></Item>")
add_message_test(flag 1 "Viewed \"true\" is neither True nor False, read as False"
  "<Entry><Viewed>true</Viewed></Entry>")
add_message_test(unknown_element 1 "unknown element SurName"
  "${list}<Entry><SurName>a</SurName>${calls}</Entry>${handle}")
add_message_test(unknown_method 1 "unknown method <getAll>" "${declaration}<Method><getAll></Method>")
add_message_test(method_unclosed 1 "Method without close tag"
  "${declaration}<Method><subscribe><EntryId>1</EntryId>")
add_message_test(undeclared 1 "the declaration is missing" "<Method><subscribe></Method>")
add_message_test(declared_list 1 "a list response has no declaration"
  "${declaration}${list}<Entry>${calls}</Entry>${handle}")
add_message_test(white_space 1 "white space between elements" "${list}\n${handle}")
add_message_test(text_between 1 "text \"abc\" between elements" "${list}abc${handle}")
add_message_test(text_behind 1 "text \"abc\" behind the last element" "${list}${handle}abc")
add_message_test(line_end 1 "white space behind the last element" "${list}${handle}\n")
add_message_test(large_handle 1
  "Handle \"4294967295\" does not fit 32 bits with a sign, read as 2147483647"
  "${list}<Handle>4294967295</Handle>")
add_message_test(no_number 1 "Handle \"7a\" is no number as writers print it, read as 7"
  "${list}<Handle>7a</Handle>")
add_message_test(failure 1 "^  outcome: failed$" "<Value>Failure</Value>")
add_message_test(reason 1 "is a reason that no store request gives"
  "${declaration}<Schema name=\"CallLogSettings\"><ReasonForMessage>write_request\
</ReasonForMessage></Schema>")
add_message_test(schema 1 "Schema \"Other\" is none of this format"
  "${declaration}<Schema name=\"Other\"><ReasonForMessage>read_request</ReasonForMessage></Schema>")
add_message_test(setting 1 "CallLogEnabled \"True\" is not true, read as disabled"
  "<CallLogEnabled>True</CallLogEnabled>")
add_message_test(empty 1 "kind: no message of the journal service" "")
add_message_test(backslash 1 "^  (text) a.x5cb$" "a\\b")
string(ASCII 27 escape)
add_message_test(terminal_is_safe 1 "^  (text) .x1b\\[31m$" "${escape}[31m")

# A NUL: the entry behind it is laid out, but readers do not get it.
set(nul "(printf '${list}<Entry>${calls}</Entry>\\000'; printf '<Entry>${calls}</Entry>')")
string(LENGTH "${list}<Entry>${calls}</Entry>" before)
add_shell_test(nul_remark 1 "^  offset ${before}: NUL byte" "${nul} | \"$@\"")
add_shell_test(nul_shown 1 "^  (text) .x00$" "${nul} | \"$@\" -")
add_shell_test(nul_ends 1 "^  entries: 1$" "${nul} | \"$@\"")

# ---- The program around it

add_show_test(help 0 "wrong use, a file that cannot be read" --help)
add_show_test(wrong_option 2 "not expected: --no-such-option" --no-such-option)
add_show_test(missing_file 2 "cannot read .*: No such file" "${golden}/none.xml")
add_show_test(directory 2 "cannot read .*: Is a directory" "${golden}")
add_show_test(two_files 1 "^File .*/entry_body.xml$"
  "${CMAKE_CURRENT_BINARY_DIR}/messages/entry_body.xml"
  "${golden}/reqSubscribe.xml")
add_show_test(goes_on 2 "^  method: subscribe$" "${golden}/none.xml" "${golden}/reqSubscribe.xml")
add_shell_test(stdin 0 "^  method: subscribe$" "\"$@\" < '${golden}/reqSubscribe.xml'")
add_shell_test(closed_output 2 "the output cannot be written" "\"$@\" >&-"
  "${golden}/reqSubscribe.xml")
add_shell_test(full_disk 2 "the output cannot be written" "\"$@\" > /dev/full"
  "${golden}/reqSubscribe.xml")
add_show_test(endless_file 2 "cannot read /dev/zero: larger than" /dev/zero)
# Neither depth nor length may take more than linear time.
set(flood "head -c 2000000 | tr -d '\\n' | (\"$@\" --values; echo exit code $?) | tail -n 2")
add_shell_test(deep_nesting 0 "^exit code 1$" "yes '<Entry><LogList><Item><Number><x>' | ${flood}")
add_shell_test(only_brackets 0 "^exit code 1$" "yes '<' | ${flood}")
add_shell_test(only_tags 0 "^exit code 1$" "yes '<a>' | ${flood}")
add_shell_test(binary 0 "^exit code 1$" "cat \"$@\" | ${flood}")
foreach(test deep_nesting only_brackets only_tags binary)
  set_tests_properties(tool_show_${test} PROPERTIES TIMEOUT 60)
endforeach()
