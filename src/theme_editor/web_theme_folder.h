#pragma once

#include <functional>
#include <memory>
#include <string>

#include "platform/front_page.h"
#include "shared/component.h"

namespace morpho {

// The folder of one theme in the open web, "_themes/<name>". If it was created here, it is deleted
// at the end unless Keep was called, so that a failed save leaves the web as it was.
class WebThemeFolder {
  public:
    WebThemeFolder(const Program& program, Web& web, const std::string& name)
        : program_(program), web_(web), name_(name) {}
    ~WebThemeFolder();
    WebThemeFolder(const WebThemeFolder&) = delete;
    WebThemeFolder& operator=(const WebThemeFolder&) = delete;

    // Finds the folder, or creates it: by the host's explorer when the web hides hidden pages, for
    // the web's folders then do not show it, and by the web's folders otherwise.
    void FindOrCreate();
    bool Exists() const { return folder_ != nullptr; }

    // Adds every normal file of a folder of the disk (with a trailing "\"), replacing those of the
    // same name; `beforeFile` gets each name. The theme's description comes last: without it the
    // folder is no theme, should the copying end early.
    void AddFilesOf(const std::string& folder,
                    const std::function<void(const std::string&)>& beforeFile);

    bool WasCreatedHere() const { return created_; }
    void Keep() { created_ = false; }
    void Delete();

  private:
    bool ShowsHiddenPages() const;
    std::string Url() const { return "_themes/" + name_; }
    void CreateByExplorer();
    void CreateByObjectModel();

    const Program program_;
    Web& web_;
    const std::string name_;
    std::unique_ptr<WebFolder> folder_;
    bool created_ = false;
};

}  // namespace morpho
