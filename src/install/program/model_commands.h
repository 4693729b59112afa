#ifndef FRAGSMITH_INSTALL_PROGRAM_MODEL_COMMANDS_H_
#define FRAGSMITH_INSTALL_PROGRAM_MODEL_COMMANDS_H_

#include <cstddef>
#include <string_view>

#include "install/program/model_catalogue.h"
#include "support/prompts.h"

namespace fragsmith {

// The commands of the Models and Skins menus, with their refusals and
// questions. Each tells whether it changed the catalogue.

/// True for a name that the Add model dialog may close with.
bool AcceptsModelName(std::string_view name, Prompts& prompts);

/// Adds a model as it was typed; one of exactly this spelling is refused.
bool AddModel(ModelCatalogue& catalogue, std::string_view name,
              bool create_red_blue, Prompts& prompts);

bool RemoveModel(ModelCatalogue& catalogue, std::size_t modelIndex,
                 Prompts& prompts);

/// Asks for the name of a new skin. The skin goes to the first model of the
/// selected one's name, whatever the case of it.
bool AddSkin(ModelCatalogue& catalogue, std::size_t modelIndex,
             Prompts& prompts);

bool RemoveSkin(ModelCatalogue& catalogue, std::size_t modelIndex,
                std::size_t skinIndex, Prompts& prompts);

}  // namespace fragsmith

#endif  // FRAGSMITH_INSTALL_PROGRAM_MODEL_COMMANDS_H_
