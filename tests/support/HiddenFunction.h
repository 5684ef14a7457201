#ifndef RUQGUI_TESTS_SUPPORT_HIDDENFUNCTION_H
#define RUQGUI_TESTS_SUPPORT_HIDDENFUNCTION_H

namespace support {

/// What hides a function, once for each system. See Hidden.
class HiddenFunction {
public:
    using Any = void (*)();

    HiddenFunction(const char* symbol, Any standIn);
    HiddenFunction(const HiddenFunction&) = delete;
    HiddenFunction& operator=(const HiddenFunction&) = delete;
    ~HiddenFunction() { hide(false); }

protected:
    /// While it lives, the library's function is to be seen.
    class Visible {
    public:
        explicit Visible(const HiddenFunction& function) : m_function(function) {
            m_function.hide(false);
        }
        Visible(const Visible&) = delete;
        Visible& operator=(const Visible&) = delete;
        ~Visible() { m_function.hide(true); }

    private:
        const HiddenFunction& m_function;
    };

    Any function() const { return m_function; }

private:
    void hide(bool hidden) const;

    static constexpr int c_jumpBytes = 12;
    Any m_function;
    Any m_standIn;
    unsigned char m_beginning[c_jumpBytes] = {};
};

/// A function of a shared library that one of the test program stands in for, whoever calls it, the library
/// itself included. The object is called to call the library's own.
/// \code
/// const Hidden s_exists("_ZN3qt36existsERK7QString", &stand_in::exists);
/// \endcode
/// The first argument is the compiler's name of the function.
///
/// Where a program's own definition of a function goes before that of a library, the program must also
/// define the function itself, and forward it to the stand-in (the folders on_posix). On Windows each
/// library keeps to its own, so the beginning of the function is overwritten by a jump.
template <class Function>
class Hidden;

template <class Result, class... Parameters>
class Hidden<Result(Parameters...)> : public HiddenFunction {
public:
    using Function = Result (*)(Parameters...);

    Hidden(const char* symbol, Function standIn)
        : HiddenFunction(symbol, reinterpret_cast<Any>(standIn)) {}

    Result operator()(Parameters... parameters) const {
        const Visible visible(*this);
        return reinterpret_cast<Function>(function())(parameters...);
    }
};

template <class Result, class... Parameters>
Hidden(const char*, Result (*)(Parameters...)) -> Hidden<Result(Parameters...)>;

} // namespace support

#endif
