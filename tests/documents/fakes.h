// What the page of this folder leaves to its reader.
inline int answer() {
  return 42;
}
