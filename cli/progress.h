// A progress bar on standard error, for someone who watches.
#pragma once

#include <string>

namespace quillet {

class Progress {
  public:
    // Draws nothing when not `wanted` or when standard error is no terminal. `what` are the things counted.
    Progress(bool wanted, int all, std::string what);

    void Show(int done) const;

  private:
    bool isShown;
    int total;
    std::string things;
};

}  // namespace quillet
