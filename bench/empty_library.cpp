// A library with one function.
__attribute__((visibility("default"))) int AnswerNothing();

int AnswerNothing() {
  return 0;
}
