#include <mqPostCommon/mqPostCommon.h>

int main() {
  const CmqPostGraphParam graph;
  const bool counts = vekPostCommonGetComponentTotal(0, 2, 0, 0, 0, 0, 0, 0, 0) == 12;
  const bool names = !vekPostCommonGetComponentName(0, 2, 0, 9, 0, 0).IsEmpty();
  const bool graphs = graph.GetFolderName() == MQ_TEXT("Response");
  return counts && names && graphs ? 0 : 1;
}
