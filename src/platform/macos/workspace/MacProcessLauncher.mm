#include "platform/macos/workspace/MacProcessLauncher.h"

#include <Foundation/Foundation.h>

#include <utility>

#include "platform/macos/foundation/NsTexts.h"
#include "support/Translation.h"

namespace kinesta {

MacProcessLauncher::MacProcessLauncher(std::function<void(const std::string&)> tell, HandOvers& handOvers)
    : m_tell(std::move(tell)), m_handOvers(handOvers) {}

void MacProcessLauncher::launch(std::string executable, std::vector<std::string> arguments) {
    const std::string path = std::move(executable);
    NSArray<NSString*>* const words = nsTexts(arguments);
    const auto tell = m_tell;
    const HandOvers::Request request = m_handOvers.begin();
    dispatch_async(dispatch_get_global_queue(QOS_CLASS_USER_INITIATED, 0), ^{
      @autoreleasepool {
          // A task without streams of its own gives its child ours, keeps itself alive until the child has ended, and
          // reaps it (from memory).
          (void)request;
          NSTask* const task = [NSTask new];
          task.executableURL = [NSURL fileURLWithPath:nsText(path)];
          task.arguments = words;
          NSError* error = nil;
          if (![task launchAndReturnError:&error])
              tell(translated("%1 could not be started: %2.", {path, textOf(error.localizedDescription)}));
      }
    });
}

}  // namespace kinesta
