#pragma once

/// What the engine runs in JavaScript to show the objects of the component model.
///
/// A proxy asks its object for all that is not known to be a method. What the language itself looks
/// for in any object is no member. The engine's WeakMap keeps what it holds, so the object is found
/// by a hidden name.
inline constexpr auto scriptHelpers = R"js((function() {
    const hidden = Symbol();
    // What the objects of a class have in common: the names alone, for those who look for them.
    class Type {
        constructor(title, methods, readable) {
            this.text = () => title;
            this.methods = new Set(methods);
            this.target = {};
            for (const name of methods)
                this.target[name] = undefined;
            for (const name of readable) {
                this.methods.delete(name);
                this.target[name] = undefined;
            }
        }
    }
    class Handler {
        constructor(object, type) {
            this.object = object;
            this.type = type;
            this.calls = Object.create(null);
        }
        get(_, name) {
            if (name === hidden)
                return this.object;
            if (this.type.methods.has(name)) {
                const object = this.object;
                if (!(name in this.calls))
                    this.calls[name] = (...values) => object.call(name, values);
                return this.calls[name];
            }
            if (name === "toString" || name === "toJSON")
                return this.type.text;
            if (typeof name !== "string" || name === "valueOf" || name === "then")
                return undefined;
            return this.object.read(name);
        }
        set(_, name, value) {
            this.object.write(String(name), value);
            return true;
        }
        has(target, name) { return Object.prototype.hasOwnProperty.call(target, name); }
    }
    return {
        type(title, methods, readable) { return new Type(title, methods, readable); },
        wrap(object, type) { return new Proxy(type.target, new Handler(object, type)); },
        find(value) { return value[hidden]; },
        globals(host, global) {
            const text = value => typeof value === "string" ? value : String(value);
            const print = (...values) => host.print(values.map(text).join(" "));
            global.createObject = id => host.createObject(String(id));
            global.print = print;
            global.console = Object.freeze({ log: print, info: print, warn: print, error: print });
            global.exit = status => host.exit(status === undefined ? 0 : status);
        },
        names(global, path) {
            let value = global;
            for (const name of path)
                value = value[name];
            const found = new Set();
            for (let each = value;
                 each !== null && each !== undefined && each !== Object.prototype;
                 each = Object.getPrototypeOf(Object(each))) {
                for (const name of Object.getOwnPropertyNames(each))
                    found.add(name);
            }
            return Array.from(found);
        },
        call(object, name, values) {
            try {
                const member = object[name];
                if (typeof member !== "function")
                    return { missing: true };
                return { value: member.apply(object, values) };
            } catch (error) {
                return { error: error };
            }
        }
    };
})())js";
