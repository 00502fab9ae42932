// Messages to try the page with: those that the tests compare byte for byte, and damaged ones.
import dialled from "../../examples/data/dialled.xml";
import forwarded from "../../examples/data/forwarded.xml";
import missed from "../../examples/data/missed.xml";
import received from "../../examples/data/received.xml";
import update from "../../tests/golden/obsReqForwardedCallsUpdate.xml";
import damaged from "../samples/damaged.txt";
import trace from "../samples/trace.txt";

export const samples = [
  { title: "A log of missed calls", text: missed },
  { title: "A log of dialled calls", text: dialled },
  { title: "A log of received calls", text: received },
  { title: "A log of forwarded calls", text: forwarded },
  { title: "A notification", text: update },
  { title: "Damaged messages", text: damaged },
  { title: "A trace with messages in it", text: trace },
];
