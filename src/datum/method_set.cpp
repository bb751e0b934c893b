#include "datum/method_set.h"

#include "datum/levels.h"

namespace ZrProj::datum::ZRPROJ_LEVEL {

constinit MethodSet const methodSet{read, cut, restore, write, prepareMolodensky, prepareBursaWolf, prepareRegression};

} // namespace ZrProj::datum::ZRPROJ_LEVEL
