// Runs steps of a test inside whatever message loop the thread is in: that of a sheet, a dialog or a message box.
#pragma once

#include <windows.h>

#include <deque>
#include <functional>
#include <vector>

// One object a thread at a time; a further one takes over until it is destroyed.
//
// The steps arrive as messages to a message-only window. A step that waits for idle runs when the thread's queue
// holds no posted message, no input and no paint, and no short timer is running. Nothing sleeps and nothing polls: a
// ping that finds work left comes again behind the posted messages, or when the pending paint or input has been taken.
class IdleLoop {
 public:
  IdleLoop();
  ~IdleLoop();
  IdleLoop(const IdleLoop&) = delete;
  IdleLoop& operator=(const IdleLoop&) = delete;

  // Runs `step` as the next posted message. Steps keep their order, among each other and among other messages.
  void Post(std::function<void()> step);

  // Runs `step` once the thread is idle and `condition`, if there is one, holds. Of several waiting steps the latest
  // goes first: it belongs to the inner of two modal loops. A condition is asked again after every message.
  void WhenIdle(std::function<void()> step, std::function<bool()> condition = {});

  // Runs the thread's messages until `finished` holds. For what is left when the modal loop has returned.
  void RunUntil(const std::function<bool()>& finished);

 private:
  struct Waiting {
    std::function<void()> step;
    std::function<bool()> condition;
    ULONGLONG since;
  };

  static LRESULT CALLBACK WindowProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
  static LRESULT CALLBACK OnMessageTaken(int code, WPARAM wParam, LPARAM lParam);
  void Ping();
  void OnPing();
  bool IsIdle();

  IdleLoop* previous_;
  HWND window_ = nullptr;
  HHOOK hook_ = nullptr;
  std::deque<std::function<void()>> posted_;
  std::vector<Waiting> waiting_;
  bool pinged_ = false;    // a ping is in the queue
  bool watching_ = false;  // the next message taken from the queue brings a ping
};
