#include "shell/WindowScenes.h"

namespace brindlex {

std::string windowIdentifier(std::string_view scene)
{
    const std::string id(scene);
    return isAuxiliaryScene(scene) ? "com.brindlex.Brindlex.window." + id : id;
}

bool isAuxiliaryScene(std::string_view scene) { return scene != windowScene::main.id; }

} // namespace brindlex
