#include <mqPostCommon/lists/pairs.h>

CVekPostListPair::CVekPostListPair() = default;
CVekPostListPair::CVekPostListPair(const CVekPostListPair&) = default;
CVekPostListPair& CVekPostListPair::operator=(const CVekPostListPair&) = default;
CVekPostListPair::~CVekPostListPair() = default;

CVekIntPair::CVekIntPair() = default;
CVekIntPair::CVekIntPair(const CVekIntPair&) = default;
CVekIntPair& CVekIntPair::operator=(const CVekIntPair&) = default;
CVekIntPair::~CVekIntPair() = default;
