// A plug-in for clang-tidy: its checks look at what is declared in the files of
// this tree, not into the system's headers, whose findings are never shown and
// which take nine tenths of the time.
#include <memory>
#include <string>
#include <vector>

#include "clang/AST/ASTConsumer.h"
#include "clang/AST/ASTContext.h"
#include "clang/Frontend/CompilerInstance.h"
#include "clang/Frontend/FrontendAction.h"
#include "clang/Frontend/FrontendPluginRegistry.h"

namespace {

class OwnDeclarations : public clang::ASTConsumer {
 public:
  void HandleTranslationUnit(clang::ASTContext& context) override {
    std::vector<clang::Decl*> own;
    const clang::SourceManager& sources = context.getSourceManager();
    for (clang::Decl* decl : context.getTranslationUnitDecl()->decls()) {
      const clang::SourceLocation place = decl->getLocation();
      if (place.isValid() && !sources.isInSystemHeader(place))
        own.push_back(decl);
    }
    context.setTraversalScope(own);
  }
};

class OwnCode : public clang::PluginASTAction {
 protected:
  std::unique_ptr<clang::ASTConsumer> CreateASTConsumer(
      clang::CompilerInstance&, llvm::StringRef) override {
    return std::make_unique<OwnDeclarations>();
  }
  bool ParseArgs(const clang::CompilerInstance&,
                 const std::vector<std::string>&) override {
    return true;
  }
  ActionType getActionType() override { return AddBeforeMainAction; }
};

clang::FrontendPluginRegistry::Add<OwnCode> registered("own-code", "");

}  // namespace
